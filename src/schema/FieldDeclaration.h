// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace velra {

/// The value types of fields. The numbers are part of the interface.
enum class tyType : std::int32_t {
  String = 0,
  Integer = 1,
  Date = 2,
  Bool = 3,
  SetOfStrings = 4,
  Real = 5,
  CloseList = 6,
  ChunkTime = 7,
  WordList = 8,
  SetOfGUIDs = 9,
  Unknow = 10,
};

/// What the schema says of a field. Shared by the fields of all objects of a class.
struct FieldDeclaration {
  tyType type = tyType::String;
  std::string strCloseList;  // the closed list's name; empty for all other types
  std::string strName;
  std::string strLowerName;  // relation fields are found by the lower-cased name
  std::string strComment;
  bool bReadOnly = false;
  bool bIgnore = false;
};

/// The fields of a class, in the schema's order.
using FieldTable = std::vector<std::shared_ptr<const FieldDeclaration>>;

}  // namespace velra
