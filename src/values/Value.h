// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "values/Chunk.h"
#include "values/Date.h"
#include "values/WordColl.h"

namespace velra {

/// The texts of a set field: strings, or identifiers of objects.
using StringList = std::vector<std::string>;

/// What a field holds. Which alternative stands in it follows from the field's type and from where
/// the value came: text read from a file stays text for numbers and closed lists. A span and a word
/// list are shared by all that hold them, so that a change through one is seen by all.
using Value = std::variant<std::monostate, std::string, std::int16_t, double, bool, Date,
                           StringList, std::shared_ptr<Chunk>, std::shared_ptr<WordColl>>;

bool isEmpty(const Value& value);

/// The value as a text; "" for an empty one. kTypeMismatch for a set, a span or a word list.
std::string toText(const Value& value);

/// The value as a number; an empty one is 0. kTypeMismatch for anything that is no number.
double toReal(const Value& value);

/// The list in the value; null when it holds none.
const StringList* asList(const Value& value);
StringList* asList(Value& value);

std::shared_ptr<Chunk> asChunk(const Value& value);
std::shared_ptr<WordColl> asWords(const Value& value);

}  // namespace velra
