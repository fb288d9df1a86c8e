// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "values/Value.h"

namespace velra {

class SEColl;
class SchemaElement;
struct ClassRules;

/// The field of a name that a person may fill in; null for one that is not there, is read-only,
/// tells how objects hang together, or is the title.
SchemaElement* writableField(SEColl& fields, const ClassRules& rules, const std::string& name);

/// What a field would hold for a text, as a form has it: one member a line for a set. Nothing where
/// the text fits no value of the field's type or of its closed list.
std::optional<Value> valueOfText(const SEColl& fields, const SchemaElement& field,
                                 const std::string& text);

}  // namespace velra
