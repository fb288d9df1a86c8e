// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "protocol/ObjectKind.h"

namespace velra {

/// How the panel of a form learns whether it holds a whole set of boxes.
enum class FrameHeightRule {
  ValidElements,             ///< all assigned fields / 10
  ValidAndReadableElements,  ///< (assigned and readable fields - 1) / 10
};

/// What tells the generated forms apart.
struct MetadataKind {
  std::string_view formName;
  ObjectKind edited;
  FrameHeightRule frameHeight;
  bool crossLanguage;  ///< it may show three fields by the vocabulary
};

/// The metadata form of a kind of object: `StorageForm`, `MediaForm`, `VersionForm` or
/// `frmAVDocForm`; null for any other.
const MetadataKind* metadataKindOf(ObjectKind edited);

}  // namespace velra
