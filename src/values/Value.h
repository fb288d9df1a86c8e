// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "values/Chunk.h"
#include "values/Date.h"
#include "values/WordColl.h"

namespace velra {

/// The texts of a set field: strings, or identifiers of objects.
using StringList = std::vector<std::string>;

/// What a field holds: nothing, a text, a number, a truth value, a day, a set, a span or a word
/// list. Which of them follows from the field's type and from where the value came: text read from
/// a file stays text for numbers and closed lists. A span and a word list are shared by all that
/// hold them, so that a change through one is seen by all.
///
/// It is one word and a length, since a large document has more than a million of them.
class Value {  // NOLINT(cppcoreguidelines-special-member-functions)
 public:
  Value() = default;
  /// kOverflow for a text of more than 4 GB.
  Value(std::string_view text);
  Value(const std::string& text) : Value(std::string_view(text)) {}
  Value(const char* text) : Value(std::string_view(text)) {}
  Value(std::int16_t whole);
  Value(double real);
  template <std::same_as<bool> Truth>  // no pointer is taken for one
  Value(Truth truth) : kind_(Kind::Truth) {
    content_.truth = truth;
  }
  Value(const Date& day);
  Value(StringList list);
  Value(std::shared_ptr<Chunk> span);
  Value(std::shared_ptr<WordColl> words);
  Value(const Value& other);
  Value(Value&& other) noexcept { swap(other); }
  Value& operator=(Value other) noexcept;  // takes copies and moves
  ~Value();

  /// A text that stands elsewhere, for as long as the value or one that is moved from it; copies
  /// have a text of their own.
  static Value borrowed(std::string_view text);

  /// No content, but a place to which whoever has made it comes back.
  static Value mark(void* place);
  void* marked() const { return kind_ == Kind::Mark ? content_.mark : nullptr; }

  /// Equal contents; a span and a word list are equal to themselves alone.
  bool operator==(const Value& other) const;

  bool empty() const { return kind_ == Kind::Empty; }
  std::optional<std::string_view> text() const;
  std::optional<std::int16_t> whole() const;
  std::optional<double> real() const;
  std::optional<bool> truth() const;
  std::optional<Date> day() const;
  /// Null when it holds none.
  StringList* list() { return kind_ == Kind::List ? content_.list : nullptr; }
  const StringList* list() const { return kind_ == Kind::List ? content_.list : nullptr; }
  std::shared_ptr<Chunk> span() const;
  std::shared_ptr<WordColl> words() const;

 private:
  enum class Kind : std::uint8_t {
    Empty,
    Text,
    Borrowed,
    Whole,
    Real,
    Truth,
    Day,
    List,
    Span,
    Words,
    Mark
  };

  struct ShortDay {
    std::int32_t year;
    std::int16_t month;
    std::int16_t day;
  };

  union Content {
    const char* text;
    std::int16_t whole;
    double real;
    bool truth;
    ShortDay day;
    StringList* list;
    std::shared_ptr<Chunk>* span;
    std::shared_ptr<WordColl>* words;
    void* mark;
  };

  std::string_view textView() const { return {content_.text, size_}; }
  void swap(Value& other) noexcept;

  Content content_{nullptr};
  std::uint32_t size_ = 0;  // of a text
  Kind kind_ = Kind::Empty;
};

inline bool isEmpty(const Value& value) {
  return value.empty();
}

/// The value as a text; "" for an empty one. kTypeMismatch for a set, a span or a word list.
std::string toText(const Value& value);

/// The value as a number; an empty one is 0. kTypeMismatch for anything that is no number.
double toReal(const Value& value);

/// The list in the value; null when it holds none.
inline const StringList* asList(const Value& value) {
  return value.list();
}
inline StringList* asList(Value& value) {
  return value.list();
}

inline std::shared_ptr<Chunk> asChunk(const Value& value) {
  return value.span();
}
inline std::shared_ptr<WordColl> asWords(const Value& value) {
  return value.words();
}

}  // namespace velra
