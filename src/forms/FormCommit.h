// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string_view>

#include "values/Value.h"

namespace velra {

class FormFields;
class SEColl;
class SchemaElement;
class CrossLanguageFields;

/// True when a stored value and what a control holds (a text, the number 0 or 1, or a date) count
/// as different. Values of different kinds do, but for false, which is the number 0; true is not
/// the number 1.
bool differs(const Value& stored, const Value& held);

/// Takes the strings of a set control into its field, if they differ in number, text or order. With
/// no string the field is no longer assigned.
void commitSet(SchemaElement& field, const StringList& strings);

/// What OK of a generated form does: every control's value goes into its field as it stands, and
/// what differs is marked as changed. Read-only and unassigned fields keep all they have.
/// `titleChanged` is called for a change of the field `titleField`; `crossLanguage` may be null.
void commitForm(const FormFields& form, SEColl& secol, CrossLanguageFields* crossLanguage,
                std::string_view titleField, const std::function<void()>& titleChanged);

}  // namespace velra
