// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "protocol/ObjectKind.h"

namespace velra {

/// What the program knows of a kind of object: its name, its fields and how it refers to others.
/// Fields of exact name and relation fields, whose names are lower-cased, are told apart in the
/// comments.
struct ClassRules {
  ObjectKind kind;
  std::string className;
  std::string identityField;            // exact
  std::string titleField;               // exact
  std::string relationField;            // lower-cased: set of the children's identifiers
  std::optional<ObjectKind> childKind;  // of these children
  std::string partOfField;              // lower-cased: the parent expression; "" for the ladder
  std::string followedByField;          // lower-cased: the next sibling
  std::vector<std::string> singleReferences;  // lower-cased: one identifier each, which follows
                                              // a rename
};

/// A MediaObject has a name and no fields.
const ClassRules& rulesOf(ObjectKind kind);

/// The field of a Video that names the picture of its key frame.
inline constexpr const char* kKeyFrameField = "Keyframe";

/// Relation field of an expression that holds the identifier of its Version, lower-cased.
inline constexpr std::string_view kVersionGuidField = "versionguid";

}  // namespace velra
