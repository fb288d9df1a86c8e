// SPDX-License-Identifier: GPL-3.0-or-later
#include "values/Value.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/RunTimeError.h"
#include "base/Text.h"

namespace velra {

namespace {

std::uint32_t sizeOf(std::string_view text) {
  if (text.size() > std::numeric_limits<std::uint32_t>::max()) raise(kOverflow);
  return static_cast<std::uint32_t>(text.size());
}

const char* copyOf(std::string_view text) {
  if (text.empty()) return nullptr;
  char* copy = new char[text.size()];
  std::copy(text.begin(), text.end(), copy);
  return copy;
}

}  // namespace

Value::Value(std::string_view text) : size_(sizeOf(text)), kind_(Kind::Text) {
  content_.text = copyOf(text);
}

Value::Value(std::int16_t whole) : kind_(Kind::Whole) {
  content_.whole = whole;
}

Value::Value(double real) : kind_(Kind::Real) {
  content_.real = real;
}

Value::Value(const Date& day) : kind_(Kind::Day) {
  content_.day = {day.year, static_cast<std::int16_t>(day.month),
                  static_cast<std::int16_t>(day.day)};
}

Value::Value(StringList list) : kind_(Kind::List) {
  content_.list = new StringList(std::move(list));
}

Value::Value(std::shared_ptr<Chunk> span) : kind_(Kind::Span) {
  content_.span = new std::shared_ptr<Chunk>(std::move(span));
}

Value::Value(std::shared_ptr<WordColl> words) : kind_(Kind::Words) {
  content_.words = new std::shared_ptr<WordColl>(std::move(words));
}

Value::Value(const Value& other)
    : content_(other.content_), size_(other.size_), kind_(other.kind_) {
  switch (kind_) {
    case Kind::Text:
    case Kind::Borrowed:
      content_.text = copyOf(other.textView());
      kind_ = Kind::Text;
      break;
    case Kind::List:
      content_.list = new StringList(*other.content_.list);
      break;
    case Kind::Span:
      content_.span = new std::shared_ptr<Chunk>(*other.content_.span);
      break;
    case Kind::Words:
      content_.words = new std::shared_ptr<WordColl>(*other.content_.words);
      break;
    default:
      break;
  }
}

Value& Value::operator=(Value other) noexcept {
  swap(other);
  return *this;
}

Value::~Value() {
  switch (kind_) {
    case Kind::Text:
      delete[] content_.text;
      break;
    case Kind::List:
      delete content_.list;
      break;
    case Kind::Span:
      delete content_.span;
      break;
    case Kind::Words:
      delete content_.words;
      break;
    default:
      break;
  }
}

Value Value::borrowed(std::string_view text) {
  Value value;
  value.content_.text = text.data();
  value.size_ = sizeOf(text);
  value.kind_ = Kind::Borrowed;
  return value;
}

Value Value::mark(void* place) {
  Value value;
  value.content_.mark = place;
  value.kind_ = Kind::Mark;
  return value;
}

void Value::swap(Value& other) noexcept {
  std::swap(content_, other.content_);
  std::swap(size_, other.size_);
  std::swap(kind_, other.kind_);
}

bool Value::operator==(const Value& other) const {
  if (text() || other.text()) return text() == other.text();
  if (kind_ != other.kind_) return false;
  switch (kind_) {
    case Kind::Whole:
      return content_.whole == other.content_.whole;
    case Kind::Real:
      return content_.real == other.content_.real;
    case Kind::Truth:
      return content_.truth == other.content_.truth;
    case Kind::Day:
      return day() == other.day();
    case Kind::List:
      return *content_.list == *other.content_.list;
    case Kind::Span:
      return *content_.span == *other.content_.span;
    case Kind::Words:
      return *content_.words == *other.content_.words;
    default:
      return true;
  }
}

std::optional<std::string_view> Value::text() const {
  if (kind_ != Kind::Text && kind_ != Kind::Borrowed) return std::nullopt;
  return textView();
}

std::optional<std::int16_t> Value::whole() const {
  if (kind_ != Kind::Whole) return std::nullopt;
  return content_.whole;
}
std::optional<double> Value::real() const {
  if (kind_ != Kind::Real) return std::nullopt;
  return content_.real;
}

std::optional<bool> Value::truth() const {
  if (kind_ != Kind::Truth) return std::nullopt;
  return content_.truth;
}

std::optional<Date> Value::day() const {
  if (kind_ != Kind::Day) return std::nullopt;
  return Date{content_.day.year, content_.day.month, content_.day.day};
}

std::shared_ptr<Chunk> Value::span() const {
  return kind_ == Kind::Span ? *content_.span : nullptr;
}
std::shared_ptr<WordColl> Value::words() const {
  return kind_ == Kind::Words ? *content_.words : nullptr;
}

std::string toText(const Value& value) {
  if (value.empty()) return {};
  if (const auto text = value.text()) return std::string(*text);
  if (const auto whole = value.whole()) return std::to_string(*whole);
  if (const auto real = value.real()) return numberText(*real);
  if (const auto truth = value.truth()) return *truth ? "True" : "False";
  if (const auto day = value.day()) return day->isoText();
  raise(kTypeMismatch);
}

double toReal(const Value& value) {
  if (value.empty()) return 0;
  if (const auto whole = value.whole()) return *whole;
  if (const auto real = value.real()) return *real;
  if (const auto text = value.text()) {
    if (const auto number = toNumber(*text)) return *number;
  }
  raise(kTypeMismatch);
}

}  // namespace velra
