// SPDX-License-Identifier: GPL-3.0-or-later
#include "expressions/ExpressionBase.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "objects/Version.h"
#include "platform/UserInterface.h"
#include "protocol/ObjectFactory.h"
#include "protocol/OpenDocument.h"
#include "schema/SEColl.h"
#include "store/IOManager.h"
#include "store/ObjectRegistry.h"
#include "store/SubTreeRemoval.h"

namespace velra {

namespace {

constexpr std::string_view kTimeField = "Time";
constexpr const char* kVersionField = "VersionGUID";

}  // namespace

ExpressionBase::ExpressionBase(ApplicationModule& app, ObjectKind kind) : ObjectBase(app, kind) {}

void ExpressionBase::setObjFollowedBy(const ExpressionRef& next) {
  objFollowedBy_ = next;
  tellReferences();
}

ReferenceFields ExpressionBase::references() const {
  return {secol(), rules(), io()};
}

bool ExpressionBase::isReference(const SchemaElement& element) const {
  return ReferenceFields::holds(element, rules());
}

void ExpressionBase::visitReferences(ReferenceVisitor& visitor) const {
  references().visit(visitor);
  for (const ExpressionRef& segment : colSubExpressions()) visitor.object(*segment);
  if (const auto next = objFollowedBy()) visitor.object(*next);
}

void ExpressionBase::RenameAllRelativesGUID(const std::string& oldGUID,
                                            const std::string& newGUID) {
  references().rename(oldGUID, newGUID);
}

void ExpressionBase::setTextField(const std::string& name, const std::string& text) {
  SchemaElement* field = secol().field(name);
  if (!field) return;
  if (toText(field->vContent()) != text) return field->assign(text);
  field->setBValid(true);
}

std::string ExpressionBase::typedText(const std::string& lowerName, Message message) const {
  return references().typedText(lowerName, app(), message);
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

ObjectList ExpressionBase::colSelSubTree() {
  ObjectList subTree;
  for (const ExpressionRef& segment : colSubExpressions()) {
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

void ExpressionBase::OpenSubExpressions() {
  segments_.replace(io()->colScanForExpressions(shared_from_this()));
  tellReferences();
  segments_.linkFollowers();
}

std::shared_ptr<ExpressionBase> ExpressionBase::makeSegment(const std::string& title) {
  if (!canNameChild()) return nullptr;
  auto segment = as<ExpressionBase>(app().objectFactory->createExpression(kind()));
  const std::string guid =
      io()->strCreateGUID(document().collObjects(), *segment, document().strGUID());
  const std::string message = segment->strInitAsNew(guid, app().strXSDPath(), schemaPrefix(), title,
                                                    app().objectFactory->createForm(kind()), io());
  if (message.empty()) return segment;
  app().ui.messageBox(message);
  return nullptr;
}

void ExpressionBase::AddSubExpression(const std::string& title, double dStart, double dend) {
  const std::shared_ptr<ExpressionBase> segment = makeSegment(title);
  if (!segment) return;
  segment->references().setPartOf(strGUID());
  segments_.link(*segment, dStart, dend);
  segment->SetChunk(dStart, dend);
  segment->prepareAsSegmentOf(*this);
  segment->setObjMainExpr(sharedOf(*this));
  segment->setVerVersion(verVersion());
  segments_.add(segment);
  tellReferences();
  segment->finishAsSegment();
  segment->OpenSubExpressions();
}

void ExpressionBase::RemoveReferenceObj(DescribedObject& removed) {
  if (removed.kind() == kind()) {
    forgetExpression(removed);
  } else if (removed.kind() == ObjectKind::Version) {
    if (io()->bGUIDComp(strVersionGUID(), removed.strGUID())) setStrVersionGUID("");
  }
}

void ExpressionBase::forgetExpression(DescribedObject& removed) {
  const auto next = objFollowedBy();
  if (next && static_cast<const DescribedObject*>(next.get()) == &removed) {
    // The chain closes over the gap.
    references().setFollowedBy(next->strFollowedBy());
    setObjFollowedBy(next->objFollowedBy());
    return;
  }
  segments_.forget(removed);
  references().clearPartOf(removed.strGUID());
}

void ExpressionBase::removeSegment(ExpressionRef segment) {
  const std::string message = segment->strRemoveAllChilds();
  if (!message.empty()) {
    app().ui.messageBox(message);
    return;
  }
  ObjectRef object = std::move(segment);
  document().RemoveObject(object);
}

void ExpressionBase::RemoveSubExpressionByPointer(const ExpressionRef& segment) {
  if (!segment) raise(kNoObject);
  removeSegment(segment);
}

}  // namespace velra
