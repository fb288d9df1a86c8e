// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/MetadataKinds.h"

namespace velra {

namespace {

constexpr MetadataKind kKinds[] = {
    {"StorageForm", "Storage", FrameHeightRule::ValidElements, false},
    {"MediaForm", "Media", FrameHeightRule::ValidAndReadableElements, false},
    {"VersionForm", "Version", FrameHeightRule::ValidAndReadableElements, false},
    {"frmAVDocForm", "AVDocument", FrameHeightRule::ValidAndReadableElements, true},
};

}  // namespace

const MetadataKind* metadataKindOf(std::string_view className) {
  for (const MetadataKind& kind : kKinds) {
    if (kind.className == className) return &kind;
  }
  return nullptr;
}

}  // namespace velra
