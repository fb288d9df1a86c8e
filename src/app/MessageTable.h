// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

namespace velra {

/// One row of the catalogue. The misspellings, and the rows whose languages stand the wrong way
/// round, are part of it; so are blanks at the ends, on which those who join texts depend.
struct MessageRow {
  int id;
  const char* text;
  const char* italian;  // null: the default text stands in
};

/// The rows in the order of their ids, without a gap: 1000 to 1099, 1100 to 1177, and from 1178 on.
std::span<const MessageRow> messagesFrom1000();
std::span<const MessageRow> messagesFrom1100();
std::span<const MessageRow> messagesFrom1178();

}  // namespace velra
