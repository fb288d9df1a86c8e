// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/MetadataKinds.h"

namespace velra {

namespace {

constexpr MetadataKind kKinds[] = {
    {"StorageForm", ObjectKind::Storage, FrameHeightRule::ValidElements, false},
    {"MediaForm", ObjectKind::Media, FrameHeightRule::ValidAndReadableElements, false},
    {"VersionForm", ObjectKind::Version, FrameHeightRule::ValidAndReadableElements, false},
    {"frmAVDocForm", ObjectKind::AVDocument, FrameHeightRule::ValidAndReadableElements, true},
};

}  // namespace

const MetadataKind* metadataKindOf(ObjectKind edited) {
  for (const MetadataKind& kind : kKinds) {
    if (kind.edited == edited) return &kind;
  }
  return nullptr;
}

}  // namespace velra
