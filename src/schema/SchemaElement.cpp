#include "schema/SchemaElement.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "schema/CloseList.h"

namespace velra {

namespace {

constexpr int kNotAssigned = 1081;

const CloseList& listNamed(const CloseLists& lists, const std::string& name) {
  const CloseList* list = lists.find(name);
  if (!list) raise(kInvalidArgument, name);
  return *list;
}

}  // namespace

SchemaElement::SchemaElement(std::shared_ptr<const FieldDeclaration> declaration)
    : declaration_(std::move(declaration)) {}

const FieldDeclaration& SchemaElement::declaration() const {
  static const FieldDeclaration kBlank;
  return declaration_ ? *declaration_ : kBlank;
}

// The declaration is shared by all objects of a class, so a field that departs from it gets a copy.
FieldDeclaration& SchemaElement::ownDeclaration() {
  auto own = std::make_shared<FieldDeclaration>(declaration());
  FieldDeclaration& result = *own;
  declaration_ = std::move(own);
  return result;
}

void SchemaElement::notify() {
  if (watcher_) watcher_->contentChanged(*this);
}

void SchemaElement::setBValid(bool valid) {
  bValid_ = valid;
  notify();
}

void SchemaElement::setBChanged(bool changed) {
  bChanged_ = changed;
  notify();
}

void SchemaElement::setVContent(Value content) {
  vContent_ = std::move(content);
  notify();
}

void SchemaElement::changeList(const std::function<void(StringList&)>& change) {
  StringList* list = asList(vContent_);
  if (!list) return;
  change(*list);
  notify();
}

void SchemaElement::setBReadOnly(bool readOnly) {
  ownDeclaration().bReadOnly = readOnly;
}

void SchemaElement::setBIgnore(bool ignore) {
  ownDeclaration().bIgnore = ignore;
}

void SchemaElement::setStrComment(const std::string& comment) {
  ownDeclaration().strComment = comment;
}

void SchemaElement::setStrName(const std::string& name) {
  FieldDeclaration& own = ownDeclaration();
  own.strName = name;
  own.strLowerName = toLower(name);
}

void SchemaElement::setStrCloseList(const std::string& closeList) {
  ownDeclaration().strCloseList = closeList;
}

void SchemaElement::setTyType(velra::tyType type) {
  ownDeclaration().type = type;
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
      return setVContent(app.LoadResString(kNotAssigned));
    case tyType::Integer:
      return setVContent(std::int16_t{0});
    case tyType::Date:
      return setVContent(std::string("01/01/2001"));
    case tyType::Bool:
      return setVContent(false);
    case tyType::SetOfStrings:
      return setVContent(StringList{app.LoadResString(kNotAssigned)});
    case tyType::Real:
      return setVContent(0.0);
    case tyType::CloseList:
      return setVContent(listNamed(lists, strCloseList()).colItems.front());
    default:
      return;
  }
}

}  // namespace velra
