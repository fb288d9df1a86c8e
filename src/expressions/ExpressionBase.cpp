// SPDX-License-Identifier: GPL-3.0-or-later
#include "expressions/ExpressionBase.h"

#include <algorithm>
#include <utility>

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "objects/Version.h"
#include "platform/UserInterface.h"
#include "protocol/OpenDocument.h"
#include "schema/SEColl.h"
#include "store/IOManager.h"
#include "store/SubTreeRemoval.h"

namespace velra {

namespace {

constexpr std::string_view kTimeField = "Time";
constexpr const char* kVersionField = "VersionGUID";
// The identifier in a field; "" where a schema gave the field a type that holds none.
std::string guidIn(const SchemaElement& field) {
  const auto* text = std::get_if<std::string>(&field.vContent());
  return text ? *text : std::string();
}

}  // namespace

ExpressionBase::ExpressionBase(ApplicationModule& app, ObjectKind kind) : ObjectBase(app, kind) {}

ExpressionBase::~ExpressionBase() = default;

void ExpressionBase::setObjFollowedBy(const ExpressionRef& next) {
  objFollowedBy_ = next;
  tellReferences();
}

bool ExpressionBase::isReference(const SchemaElement& element) const {
  return element.strLowerName() == "manifestedby" || isSingleReference(element);
}

bool ExpressionBase::isSingleReference(const SchemaElement& element) const {
  const std::vector<std::string>& names = rules().singleReferences;
  return std::find(names.begin(), names.end(), element.strLowerName()) != names.end();
}

void ExpressionBase::setTextField(const std::string& name, const std::string& text) {
  SchemaElement* field = secol().field(name);
  if (!field) return;
  if (toText(field->vContent()) != text) return field->assign(text);
  field->setBValid(true);
}

std::string ExpressionBase::typedText(const std::string& lowerName, Message message) const {
  const SchemaElement* field = secol().relationField(lowerName);
  if (!field) return {};
  if (field->tyType() != tyType::String) {
    app().ui.messageBox(app().LoadResString(message));
    return {};
  }
  return field->bValid() ? toText(field->vContent()) : std::string();
}

std::string ExpressionBase::strVersionGUID() const {
  const SchemaElement* field = secol().field(kVersionField);
  return field && field->bValid() ? toText(field->vContent()) : std::string();
}

void ExpressionBase::setStrVersionGUID(const std::string& guid) {
  setTextField(kVersionField, guid);
  SchemaElement* field = secol().field(kVersionField);
  if (field && guid.empty()) field->setBValid(false);
}

// The texts name two relations of a Video alone, and are shown for these as well.
std::string ExpressionBase::strGetPartOf() const {
  return typedText(rules().partOfField, Message::HasAudioMustBeString);
}

std::string ExpressionBase::strFollowedBy() const {
  return typedText(rules().followedByField, Message::HasTranscriptMustBeString);
}

bool ExpressionBase::bCheckIfOwnRelative(ObjectKind ofKind, const std::string& guid) const {
  return ofKind == ObjectKind::Version &&
         io()->bGUIDComp(secol().relationText(kVersionGuidField), guid);
}

bool ExpressionBase::bCheckIfSubExpression(ObjectKind ofKind, const std::string& guid) const {
  return ofKind == kind() && io()->bGUIDComp(secol().relationText(rules().partOfField), guid);
}

std::shared_ptr<Chunk> ExpressionBase::ckGetChunk() const {
  const SchemaElement* field = secol().field(kTimeField);
  return field && field->bValid() ? asChunk(field->vContent()) : nullptr;
}

void ExpressionBase::SetChunk(double dStart, double dend) {
  SchemaElement* field = secol().field(kTimeField);
  if (!field) return;
  auto chunk = std::make_shared<Chunk>();
  chunk->dStart = dStart;
  chunk->dend = dend;
  field->assign(std::move(chunk));
}

std::string ExpressionBase::strGetMediaObjectPath() const {
  const auto version = as<Version>(verVersion());
  return version ? version->strGetMediaObjectPath() : std::string();
}

void ExpressionBase::OpenTranscript() {
  const auto version = as<Version>(verVersion());
  if (!version) raise(kNoObject);
  objTranscript_ = version->trMainTranscript();
}

ObjectList ExpressionBase::waitsFor() const {
  ObjectList others;
  for (const ObjectRef& other :
       {ObjectRef(objMainExpr()), ObjectRef(objFollowedBy()), verVersion()}) {
    if (other) others.push_back(other);
  }
  return others;
}

void ExpressionBase::visitReferences(ReferenceVisitor& visitor) const {
  for (const SchemaElement& field : secol()) {
    // The parent is looked at whether the field is assigned or not.
    const std::string only = isSingleReference(field) ? guidIn(field) : std::string();
    if (!only.empty()) visitor.identifier(only);
    if (field.strLowerName() != "manifestedby" || !field.bValid()) continue;
    if (const StringList* list = asList(field.vContent())) {
      for (const std::string& guid : *list) visitor.identifier(guid);
    }
  }
  for (const ExpressionRef& segment : colSubExpressions_) visitor.object(*segment);
  if (const auto next = objFollowedBy()) visitor.object(*next);
}

void ExpressionBase::RenameAllRelativesGUID(const std::string& oldGUID,
                                            const std::string& newGUID) {
  renameManifestations(oldGUID, newGUID);
  for (SchemaElement& field : secol()) {
    if (!isSingleReference(field) || !field.bValid()) continue;
    if (!io()->bGUIDComp(guidIn(field), oldGUID)) continue;
    field.assign(newGUID);
  }
}

void ExpressionBase::renameManifestations(const std::string& oldGUID, const std::string& newGUID) {
  for (SchemaElement& field : secol()) {
    if (field.strLowerName() != "manifestedby" || !field.bValid()) continue;
    const StringList* members = asList(field.vContent());
    if (!members) continue;
    const auto at = std::find_if(members->begin(), members->end(), [&](const std::string& member) {
      return io()->bGUIDComp(member, oldGUID);
    });
    if (at == members->end()) continue;
    const auto offset = at - members->begin();
    field.changeList([&](StringList& list) {
      list.erase(list.begin() + offset);
      list.push_back(newGUID);
    });
    field.setBChanged(true);
  }
}

ObjectList ExpressionBase::colSelSubTree() {
  ObjectList subTree;
  for (const ExpressionRef& segment : colSubExpressions_) {
    const ObjectList below = segment->colSelSubTree();
    if (below.empty()) return {};
    subTree.insert(subTree.end(), below.begin(), below.end());
  }
  subTree.push_back(shared_from_this());
  return subTree;
}

std::string ExpressionBase::strRemoveAllChilds() {
  return strRemoveAllBelow(*this, document());
}

}  // namespace velra
