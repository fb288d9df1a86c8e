// SPDX-License-Identifier: GPL-3.0-or-later
#include "schema/FieldList.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "base/Arithmetic.h"
#include "base/RunTimeError.h"
#include "base/Text.h"

namespace velra {

namespace {

template <class Elements, class Matches>
auto* firstOf(Elements& elements, Matches matches) {
  const auto at = std::find_if(elements.begin(), elements.end(), matches);
  return at == elements.end() ? nullptr : &*at;
}

auto hasName(std::string_view name) {
  return [name](const SchemaElement& element) { return element.strName() == name; };
}

auto hasLowerName(std::string_view name) {
  return [name](const SchemaElement& element) { return element.strLowerName() == name; };
}

}  // namespace

SchemaElement& FieldList::Add(tyType type, const std::string& strCloseList,
                              const std::string& strName, Value vContent,
                              const std::string& strComment, bool bIgnore, bool bReadOnly,
                              bool bChanged, bool bValid, const std::string& sKey) {
  if (!sKey.empty() && std::find(keys_.begin(), keys_.end(), sKey) != keys_.end()) {
    raise(kDuplicateKey);
  }
  DeclarationRef declaration(FieldDeclaration{type, strCloseList, strName, toLower(strName),
                                              strComment, bReadOnly, bIgnore});
  SchemaElement& element = elements_.emplace_back(std::move(declaration));
  element.setVContent(std::move(vContent));
  element.setBChanged(bChanged);
  element.setBValid(bValid);
  keys_.resize(elements_.size());
  keys_.back() = sKey;
  return element;
}

SchemaElement& FieldList::Item(std::size_t position) {
  if (position < 1 || position > elements_.size()) raise(kSubscriptOutOfRange);
  return elements_[position - 1];
}

const SchemaElement& FieldList::Item(std::size_t position) const {
  if (position < 1 || position > elements_.size()) raise(kSubscriptOutOfRange);
  return elements_[position - 1];
}

SchemaElement& FieldList::Item(const std::string& key) {
  const auto at = std::find(keys_.begin(), keys_.end(), key);
  if (key.empty() || at == keys_.end()) raise(kInvalidArgument, key);
  return elements_[static_cast<std::size_t>(at - keys_.begin())];
}

void FieldList::Remove(std::size_t position) {
  Item(position);
  const auto offset = static_cast<std::ptrdiff_t>(position) - 1;
  elements_.erase(elements_.begin() + offset);
  if (keys_.size() >= position) keys_.erase(keys_.begin() + offset);
}

SchemaElement* FieldList::field(std::string_view strName) {
  return firstOf(elements_, hasName(strName));
}

const SchemaElement* FieldList::field(std::string_view strName) const {
  return firstOf(elements_, hasName(strName));
}

SchemaElement* FieldList::relationField(std::string_view strLowerName) {
  return firstOf(elements_, hasLowerName(strLowerName));
}

const SchemaElement* FieldList::relationField(std::string_view strLowerName) const {
  return firstOf(elements_, hasLowerName(strLowerName));
}

std::string FieldList::assignedText(std::string_view strName) const {
  for (const SchemaElement& element : elements_) {
    if (element.bValid() && element.strName() == strName) return toText(element.vContent());
  }
  return {};
}

std::string FieldList::relationText(std::string_view strLowerName) const {
  const SchemaElement* field = relationField(strLowerName);
  const auto* text = field ? std::get_if<std::string>(&field->vContent()) : nullptr;
  return text ? *text : std::string();
}

const StringList* FieldList::relationList(std::string_view strLowerName) const {
  const SchemaElement* field = relationField(strLowerName);
  return field && field->bValid() ? asList(field->vContent()) : nullptr;
}

std::int16_t FieldList::iNumValid() const {
  return toInt16(static_cast<double>(
      std::count_if(elements_.begin(), elements_.end(),
                    [](const SchemaElement& element) { return element.bValid(); })));
}

std::int16_t FieldList::iNumValidAndReadable() const {
  return toInt16(static_cast<double>(
      std::count_if(elements_.begin(), elements_.end(), [](const SchemaElement& element) {
        return element.bValid() && element.bIsHumanReadable();
      })));
}

bool FieldList::bChanged() const {
  return std::any_of(elements_.begin(), elements_.end(),
                     [](const SchemaElement& element) { return element.bChanged(); });
}

}  // namespace velra
