// SPDX-License-Identifier: GPL-3.0-or-later
#include "schema/FieldList.h"

#include <algorithm>
#include <atomic>
#include <memory>
#include <utility>

#include "base/Arithmetic.h"
#include "base/RunTimeError.h"
#include "base/Text.h"

namespace velra {

namespace {

// The process has them once, so that none is given twice.
std::atomic<std::uint64_t> lastStateNumber = 0;

// The fields themselves are not touched: many of them are in no cache.
template <class Element, class Matches>
Element* firstOf(std::span<Element> elements, const std::shared_ptr<const FieldTable>& table,
                 Matches matches) {
  if (!table) return nullptr;
  const auto at = std::find_if(table->begin(), table->end(), matches);
  return at == table->end() ? nullptr : &elements[static_cast<std::size_t>(at - table->begin())];
}

auto hasName(std::string_view name) {
  return [name](const auto& declaration) { return declaration->strName == name; };
}

auto hasLowerName(std::string_view name) {
  return [name](const auto& declaration) { return declaration->strLowerName == name; };
}

}  // namespace

FieldList::FieldList() {
  elements_.push_back(SchemaElement(*this));
}

SchemaElement& FieldList::Add(tyType type, const std::string& strCloseList,
                              const std::string& strName, Value vContent,
                              const std::string& strComment, bool bIgnore, bool bReadOnly,
                              bool bChanged, bool bValid, const std::string& sKey) {
  if (!sKey.empty() && std::find(keys_.begin(), keys_.end(), sKey) != keys_.end()) {
    raise(kDuplicateKey);
  }
  FieldTable table = ownTable();
  table.push_back(std::make_shared<const FieldDeclaration>(FieldDeclaration{
      type, strCloseList, strName, toLower(strName), strComment, bReadOnly, bIgnore}));
  table_ = std::make_shared<const FieldTable>(std::move(table));
  SchemaElement& element = elements_.emplace_back(SchemaElement(elements_.size()));
  element.setVContent(std::move(vContent));
  element.setBChanged(bChanged);
  element.setBValid(bValid);
  keys_.resize(Count());
  keys_.back() = sKey;
  return element;
}

SchemaElement& FieldList::Item(std::size_t position) {
  if (position < 1 || position > Count()) raise(kSubscriptOutOfRange);
  return elements_[position];
}

const SchemaElement& FieldList::Item(std::size_t position) const {
  if (position < 1 || position > Count()) raise(kSubscriptOutOfRange);
  return elements_[position];
}

SchemaElement& FieldList::Item(const std::string& key) {
  const auto at = std::find(keys_.begin(), keys_.end(), key);
  if (key.empty() || at == keys_.end()) raise(kInvalidArgument, key);
  return elements_[static_cast<std::size_t>(at - keys_.begin()) + 1];
}

void FieldList::Remove(std::size_t position) {
  Item(position);
  forgetState();
  const auto offset = static_cast<std::ptrdiff_t>(position) - 1;
  elements_.erase(elements_.begin() + offset + 1);
  for (std::size_t place = position; place < elements_.size(); ++place) {
    elements_[place].setPlace(place);
  }
  FieldTable table = ownTable();
  table.erase(table.begin() + offset);
  table_ = std::make_shared<const FieldTable>(std::move(table));
  if (keys_.size() >= position) keys_.erase(keys_.begin() + offset);
}

SchemaElement* FieldList::field(std::string_view strName) {
  return firstOf(elements(), table_, hasName(strName));
}

const SchemaElement* FieldList::field(std::string_view strName) const {
  return firstOf(elements(), table_, hasName(strName));
}

SchemaElement* FieldList::relationField(std::string_view strLowerName) {
  return firstOf(elements(), table_, hasLowerName(strLowerName));
}

const SchemaElement* FieldList::relationField(std::string_view strLowerName) const {
  return firstOf(elements(), table_, hasLowerName(strLowerName));
}

FieldTable FieldList::ownTable() const {
  return table_ ? *table_ : FieldTable();
}

void FieldList::redeclare(const SchemaElement& element, FieldDeclaration declaration) {
  forgetState();
  FieldTable table = ownTable();
  table[element.place() - 1] = std::make_shared<const FieldDeclaration>(std::move(declaration));
  table_ = std::make_shared<const FieldTable>(std::move(table));
}

void FieldList::declare(const std::shared_ptr<const FieldTable>& table) {
  forgetState();
  if (Count() == 0) {
    table_ = table;
  } else {
    FieldTable both = ownTable();
    both.insert(both.end(), table->begin(), table->end());
    table_ = std::make_shared<const FieldTable>(std::move(both));
  }
  elements_.reserve(table_->size() + 1);
  while (Count() < table_->size()) elements_.push_back(SchemaElement(elements_.size()));
}

void FieldList::packTexts() {
  std::size_t size = 0;
  for (const SchemaElement& element : elements()) {
    size += element.vContent().text().value_or("").size();
  }
  std::unique_ptr<char[]> texts(new char[size]);
  char* end = texts.get();
  for (SchemaElement& element : elements()) {
    const auto text = element.vContent().text();
    if (!text) continue;
    char* const start = end;
    end = std::copy(text->begin(), text->end(), start);
    element.vContent_ = Value::borrowed({start, text->size()});
  }
  texts_ = std::move(texts);
}

std::string FieldList::assignedText(std::string_view strName) const {
  for (std::size_t place = 1; place < elements_.size(); ++place) {
    const bool named = (*table_)[place - 1]->strName == strName;
    if (named && elements_[place].bValid()) return toText(elements_[place].vContent());
  }
  return {};
}

std::string FieldList::relationText(std::string_view strLowerName) const {
  const SchemaElement* field = relationField(strLowerName);
  return field ? std::string(field->vContent().text().value_or("")) : std::string();
}

const StringList* FieldList::relationList(std::string_view strLowerName) const {
  const SchemaElement* field = relationField(strLowerName);
  return field && field->bValid() ? asList(field->vContent()) : nullptr;
}

std::uint64_t FieldList::stateNumber() const {
  if (state_ == 0) state_ = ++lastStateNumber;
  return state_;
}

std::int16_t FieldList::iNumValid() const {
  return toInt16(static_cast<double>(std::count_if(
      begin(), end(), [](const SchemaElement& element) { return element.bValid(); })));
}

std::int16_t FieldList::iNumValidAndReadable() const {
  return toInt16(
      static_cast<double>(std::count_if(begin(), end(), [](const SchemaElement& element) {
        return element.bValid() && element.bIsHumanReadable();
      })));
}

bool FieldList::bChanged() const {
  return std::any_of(begin(), end(),
                     [](const SchemaElement& element) { return element.bChanged(); });
}

}  // namespace velra
