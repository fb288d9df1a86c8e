// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace velra {

/// How the panel of a form learns whether it holds a whole set of boxes.
enum class FrameHeightRule {
  ValidElements,             ///< all assigned fields / 10
  ValidAndReadableElements,  ///< (assigned and readable fields - 1) / 10
};

/// What tells the generated forms apart.
struct MetadataKind {
  std::string_view formName;
  std::string_view className;  ///< the class that it edits
  FrameHeightRule frameHeight;
  bool crossLanguage;  ///< it may show three fields by the vocabulary
};

/// The metadata form of a class: `StorageForm`, `MediaForm`, `VersionForm` or `frmAVDocForm`; null
/// for any other class.
const MetadataKind* metadataKindOf(std::string_view className);

}  // namespace velra
