#include "forms/MetadataKinds.h"

namespace velra {

namespace {

constexpr MetadataKind kKinds[] = {
    {"StorageForm", "Storage", "Collocation", FrameHeightRule::ValidElements, false},
    {"MediaForm", "Media", "Format", FrameHeightRule::ValidAndReadableElements, false},
    {"VersionForm", "Version", "VersionTitle", FrameHeightRule::ValidAndReadableElements, false},
    {"frmAVDocForm", "AVDocument", "Title", FrameHeightRule::ValidAndReadableElements, true},
};

}  // namespace

const MetadataKind* metadataKindOf(std::string_view className) {
  for (const MetadataKind& kind : kKinds) {
    if (kind.className == className) return &kind;
  }
  return nullptr;
}

}  // namespace velra
