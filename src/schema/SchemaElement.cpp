// SPDX-License-Identifier: GPL-3.0-or-later
#include "schema/SchemaElement.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "schema/CloseList.h"
#include "schema/FieldList.h"

namespace velra {

namespace {

const CloseList& listNamed(const CloseLists& lists, const std::string& name) {
  const CloseList* list = lists.find(name);
  if (!list) raise(kInvalidArgument, name);
  return *list;
}

}  // namespace

static_assert(sizeof(SchemaElement) == sizeof(Value));

void SchemaElement::setPlace(std::size_t place) {
  constexpr std::size_t kEnd = std::size_t{1} << 22;
  if (place >= kEnd) raise(kOverflow);
  placeLow_ = static_cast<std::uint16_t>(place & 0xFFFF);
  placeHigh_ = static_cast<std::uint8_t>(place >> 16) & 0x3F;
}

FieldList& SchemaElement::list() const {
  return *static_cast<FieldList*>((this - place())->vContent_.marked());
}

const FieldDeclaration& SchemaElement::declaration() const {
  return list().declarationOf(*this);
}

// The declaration is shared by all objects of a class, so a field that departs from it gets a copy.
void SchemaElement::changeDeclaration(const std::function<void(FieldDeclaration&)>& change) {
  FieldDeclaration own = declaration();
  change(own);
  list().redeclare(*this, std::move(own));
}

void SchemaElement::tellWatcher(ReferenceChange change) {
  list().forgetState();
  if (ContentWatcher* watcher = list().watcher()) watcher->contentChanged(*this, change);
}

void SchemaElement::assign(Value content) {
  vContent_ = std::move(content);
  bChanged_ = true;
  setBValid(true);
}

void SchemaElement::unassign() {
  bChanged_ = true;
  setBValid(false);
}

void SchemaElement::setBValid(bool valid) {
  bValid_ = valid;
  tellWatcher(valid ? ReferenceChange::MayAdd : ReferenceChange::AddsNone);
}

void SchemaElement::setBChanged(bool changed) {
  if (!changed && !bChanged_) return;  // each save asks it of every field
  bChanged_ = changed;
  tellWatcher(ReferenceChange::AddsNone);
}

void SchemaElement::setVContent(Value content) {
  vContent_ = std::move(content);
  tellWatcher(isEmpty(vContent_) ? ReferenceChange::AddsNone : ReferenceChange::MayAdd);
}

void SchemaElement::changeList(const std::function<void(StringList&)>& change) {
  StringList* list = asList(vContent_);
  if (!list) return;
  change(*list);
  tellWatcher(ReferenceChange::MayAdd);
}

void SchemaElement::removeFromList(std::size_t offset) {
  StringList* list = asList(vContent_);
  if (!list || offset >= list->size()) return;
  list->erase(list->begin() + static_cast<std::ptrdiff_t>(offset));
  tellWatcher(ReferenceChange::AddsNone);
}

void SchemaElement::setBReadOnly(bool readOnly) {
  changeDeclaration([&](FieldDeclaration& own) { own.bReadOnly = readOnly; });
}

void SchemaElement::setBIgnore(bool ignore) {
  changeDeclaration([&](FieldDeclaration& own) { own.bIgnore = ignore; });
}

void SchemaElement::setStrComment(const std::string& comment) {
  changeDeclaration([&](FieldDeclaration& own) { own.strComment = comment; });
}

void SchemaElement::setStrName(const std::string& name) {
  changeDeclaration([&](FieldDeclaration& own) {
    own.strName = name;
    own.strLowerName = toLower(name);
  });
}

void SchemaElement::setStrCloseList(const std::string& closeList) {
  changeDeclaration([&](FieldDeclaration& own) { own.strCloseList = closeList; });
}

void SchemaElement::setTyType(velra::tyType type) {
  changeDeclaration([&](FieldDeclaration& own) { own.type = type; });
}

std::string SchemaElement::strType() const {
  switch (tyType()) {
    case tyType::String:
      return "String";
    case tyType::Integer:
      return "Integer";
    case tyType::Date:
      return "Date";
    case tyType::Bool:
      return "Bool";
    case tyType::SetOfStrings:
      return "SetOfStrings";
    case tyType::Real:
      return "Real";
    case tyType::CloseList:
      return strCloseList() + " (CloseList)";
    case tyType::ChunkTime:
      return "ChunkTime";
    case tyType::WordList:
      return "WordList";
    case tyType::SetOfGUIDs:
      return "SetOfGUIDs";
    case tyType::Unknow:
      return "Unknow";
  }
  return {};
}

bool SchemaElement::bIsHumanReadable() const {
  return tyType() >= tyType::String && tyType() <= tyType::CloseList;
}

void SchemaElement::Init(const ApplicationModule& app, const CloseLists& lists) {
  switch (tyType()) {
    case tyType::String:
      return setVContent(app.LoadResString(Message::NotAssigned));
    case tyType::Integer:
      return setVContent(std::int16_t{0});
    case tyType::Date:
      return setVContent(std::string("01/01/2001"));
    case tyType::Bool:
      return setVContent(false);
    case tyType::SetOfStrings:
      return setVContent(StringList{app.LoadResString(Message::NotAssigned)});
    case tyType::Real:
      return setVContent(0.0);
    case tyType::CloseList:
      return setVContent(listNamed(lists, strCloseList()).colItems.front());
    default:
      return;
  }
}

}  // namespace velra
