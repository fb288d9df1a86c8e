// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "values/Value.h"

namespace velra {

/// What a control takes from a field's value. A value that cannot be turned into the control's type
/// raises kTypeMismatch.

/// A date, or a text that is one.
Date toDate(const Value& value);

/// A truth value, a number (0 is false), the words "true" and "false" in any case, a numeric text;
/// an empty value is false.
bool toBoolean(const Value& value);

/// The list in the value; kNoObject when it holds none.
const StringList& toCollection(const Value& value);

}  // namespace velra
