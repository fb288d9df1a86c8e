// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velra {

/// What the program knows of a class by name: its fields and how it refers to others. Fields of
/// exact name and relation fields, whose names are lower-cased, are told apart in the comments.
struct ClassRules {
  std::string className;
  std::string identityField;    // exact
  std::string titleField;       // exact
  std::string relationField;    // lower-cased: set of the children's identifiers; "" for none
  std::string childClass;       // class of these children
  std::string partOfField;      // lower-cased: the parent expression; "" for the ladder
  std::string followedByField;  // lower-cased: the next sibling
  std::vector<std::string> singleReferences;  // lower-cased: one identifier each, which follows
                                              // a rename
};

/// Null for a class that is none of the seven.
const ClassRules* findClassRules(std::string_view className);

/// The field that holds the title of an object of the class; "" for any other class.
std::string_view titleFieldOf(std::string_view className);

/// True for Video, Audio and Transcript.
bool isExpressionClass(std::string_view className);

/// Relation field of an expression that holds the identifier of its Version, lower-cased.
inline constexpr std::string_view kVersionGuidField = "versionguid";

}  // namespace velra
