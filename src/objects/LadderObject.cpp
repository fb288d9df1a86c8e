// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/LadderObject.h"

#include <algorithm>
#include <utility>

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "platform/UserInterface.h"
#include "protocol/ObjectFactory.h"
#include "protocol/OpenDocument.h"
#include "schema/SEColl.h"
#include "schema/SchemaFile.h"
#include "store/IOManager.h"
#include "store/ObjectRegistry.h"
#include "store/SubTreeRemoval.h"

namespace velra {

LadderObject::LadderObject(ApplicationModule& app, ObjectKind kind) : ObjectBase(app, kind) {}

LadderObject::~LadderObject() = default;

const StringList* LadderObject::relation() const {
  const SchemaElement* field = secol().relationField(rules().relationField);
  if (field && field->tyType() != tyType::SetOfGUIDs) {
    app().ui.messageBox(app().LoadResString(Message::RelationsMustBeGuids));
    return nullptr;
  }
  return field && field->bValid() ? asList(field->vContent()) : nullptr;
}

void LadderObject::OpenChilds() {
  const StringList* list = relation();
  if (!list) return;
  const StringList guids = *list;  // opening may touch the field
  for (const std::string& guid : guids) {
    const ObjectRef child = childOf(guid);
    if (!child) continue;
    adopt(*child);
    attach(child);
  }
}

ObjectRef LadderObject::childOf(const std::string& guid) {
  if (const RegisteredRef loaded = document().loadedObject(guid)) {
    if (loaded->kind() == childKind()) return as<DescribedObject>(loaded);
    const std::string mismatch =
        classNameOf(childKind()) + ": " + app().LoadResString(Message::ClassNameMismatch);
    app().ui.messageBox(mismatch);
    io()->noteLeftOut(guid, mismatch);
    return nullptr;
  }
  ObjectRef child = app().objectFactory->createObject(childKind());
  const std::string message = openChild(child, guid, app().objectFactory->createForm(childKind()));
  if (message.empty()) return child;
  app().ui.messageBox(message, BoxKind::Exclamation);
  return nullptr;
}

std::string LadderObject::openChild(const ObjectRef& child, const std::string& guid,
                                    const std::shared_ptr<ObjectForm>& form) {
  return child->strOpen(guid, form, io());
}

void LadderObject::attach(const ObjectRef& child) {
  colChilds_.push_back(child);
  tellReferences();
}

void LadderObject::AddChild(const std::string& title) {
  if (!canNameChild()) return;
  const ObjectRef child = app().objectFactory->createObject(childKind());
  const std::string guid =
      io()->strCreateGUID(document().collObjects(), *child, document().strGUID());
  const std::string message =
      child->strInitAsNew(guid, app().strXSDPath(), schemaPrefix(), title,
                          app().objectFactory->createForm(childKind()), io());
  if (!message.empty()) {
    app().ui.messageBox(message);
    return;
  }
  addReference(guid);
  LadderObject::attach(child);
  adopt(*child);
}

void LadderObject::addReference(const std::string& guid) {
  SchemaElement* field = secol().relationField(rules().relationField);
  if (!field) return;
  if (!field->bValid()) field->setVContent(StringList{});
  field->changeList([&](StringList& list) { list.push_back(guid); });
  field->setBChanged(true);
  field->setBValid(true);
}

SchemaElement* LadderObject::fieldHolding(const std::string& guid, std::size_t& offset) {
  const StringList* list = secol().relationList(rules().relationField);
  if (!list) return nullptr;
  const auto at = std::find_if(list->begin(), list->end(), [&](const std::string& member) {
    return io()->bGUIDComp(member, guid);
  });
  offset = static_cast<std::size_t>(at - list->begin());
  return at == list->end() ? nullptr : secol().relationField(rules().relationField);
}

void LadderObject::visitReferences(ReferenceVisitor& visitor) const {
  if (const StringList* list = secol().relationList(rules().relationField)) {
    for (const std::string& guid : *list) visitor.identifier(guid);
  }
  for (const ObjectRef& child : colChilds_) visitor.object(*child);
}

bool LadderObject::bCheckIfOwnRelative(ObjectKind ofKind, const std::string& guid) const {
  if (ofKind != rules().childKind) return false;
  const StringList* list = secol().relationList(rules().relationField);
  return list && std::any_of(list->begin(), list->end(), [&](const std::string& member) {
           return io()->bGUIDComp(member, guid);
         });
}

void LadderObject::RenameAllRelativesGUID(const std::string& oldGUID, const std::string& newGUID) {
  std::size_t offset = 0;
  SchemaElement* field = fieldHolding(oldGUID, offset);
  if (!field) return;
  field->changeList([&](StringList& list) {
    list.erase(list.begin() + static_cast<std::ptrdiff_t>(offset));
    list.push_back(newGUID);
  });
  field->setBChanged(true);
}

void LadderObject::removeReference(const std::string& guid) {
  std::size_t offset = 0;
  SchemaElement* field = fieldHolding(guid, offset);
  if (!field) return;
  field->removeFromList(offset);
  field->setBChanged(true);
  // An empty set is never kept: the field is assigned with a member or not at all.
  if (!asList(field->vContent())->empty()) return;
  field->setVContent({});
  field->unassign();
}

void LadderObject::RemoveReferenceObj(DescribedObject& removed) {
  removeReference(removed.strGUID());
  const auto at = std::find_if(colChilds_.begin(), colChilds_.end(),
                               [&](const ObjectRef& child) { return child.get() == &removed; });
  if (at != colChilds_.end()) colChilds_.erase(at);
}

ObjectList LadderObject::colSelSubTree() {
  ObjectList subTree;
  for (const ObjectRef& child : colChilds_) {
    const ObjectList below = child->colSelSubTree();
    if (below.empty()) return {};
    subTree.insert(subTree.end(), below.begin(), below.end());
  }
  appendSubTrees(subTree);
  subTree.push_back(shared_from_this());
  return subTree;
}

std::string LadderObject::strRemoveAllChilds() {
  return strRemoveAllBelow(*this, document());
}

}  // namespace velra
