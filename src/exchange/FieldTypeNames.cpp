// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/FieldTypeNames.h"

namespace velra {

const char* fieldTypeName(tyType type) {
  switch (type) {
    case tyType::Integer:
      return "integer";
    case tyType::Date:
      return "date";
    case tyType::Bool:
      return "boolean";
    case tyType::SetOfStrings:
      return "strings";
    case tyType::Real:
      return "real";
    case tyType::CloseList:
      return "list";
    case tyType::ChunkTime:
      return "span";
    case tyType::WordList:
      return "words";
    case tyType::SetOfGUIDs:
      return "references";
    case tyType::Unknow:
      return "unknown";
    default:
      return "string";
  }
}

}  // namespace velra
