// SPDX-License-Identifier: GPL-3.0-or-later
#include "expressions/ReferenceFields.h"

#include <algorithm>

#include "app/ApplicationModule.h"
#include "platform/UserInterface.h"
#include "protocol/ClassRules.h"
#include "schema/SEColl.h"
#include "store/IOManager.h"

namespace velra {

namespace {

// The identifier in a field; "" where a schema gave the field a type that holds none.
std::string guidIn(const SchemaElement& field) {
  return std::string(field.vContent().text().value_or(""));
}

bool isManifestation(const SchemaElement& field) {
  return field.strLowerName() == "manifestedby";
}

bool isSingle(const SchemaElement& field, const ClassRules& rules) {
  const std::vector<std::string>& names = rules.singleReferences;
  return std::find(names.begin(), names.end(), field.strLowerName()) != names.end();
}

}  // namespace

bool ReferenceFields::holds(const SchemaElement& field, const ClassRules& rules) {
  return isManifestation(field) || isSingle(field, rules);
}

void ReferenceFields::setPartOf(const std::string& guid) {
  if (SchemaElement* field = secol_.relationField(rules_.partOfField)) field->assign(guid);
}

void ReferenceFields::clearPartOf(const std::string& guid) {
  SchemaElement* field = secol_.relationField(rules_.partOfField);
  if (!field || !io_->bGUIDComp(secol_.relationText(rules_.partOfField), guid)) return;
  field->unassign();
}

void ReferenceFields::setFollowedBy(const std::string& guid) {
  SchemaElement* field = secol_.relationField(rules_.followedByField);
  if (!field) return;
  if (guid.empty()) return field->unassign();
  field->assign(guid);
}

std::string ReferenceFields::typedText(const std::string& lowerName, const ApplicationModule& app,
                                       Message message) const {
  const SchemaElement* field = secol_.relationField(lowerName);
  if (!field) return {};
  if (field->tyType() != tyType::String) {
    app.ui.messageBox(app.LoadResString(message));
    return {};
  }
  return field->bValid() ? toText(field->vContent()) : std::string();
}

void ReferenceFields::visit(ReferenceVisitor& visitor) const {
  for (const SchemaElement& field : secol_) {
    // The parent is looked at whether the field is assigned or not.
    const std::string only = isSingle(field, rules_) ? guidIn(field) : std::string();
    if (!only.empty()) visitor.identifier(only);
    if (!isManifestation(field) || !field.bValid()) continue;
    if (const StringList* list = asList(field.vContent())) {
      for (const std::string& guid : *list) visitor.identifier(guid);
    }
  }
}

void ReferenceFields::rename(const std::string& oldGUID, const std::string& newGUID) {
  renameManifestations(oldGUID, newGUID);
  for (SchemaElement& field : secol_) {
    if (!isSingle(field, rules_) || !field.bValid()) continue;
    if (!io_->bGUIDComp(guidIn(field), oldGUID)) continue;
    field.assign(newGUID);
  }
}

void ReferenceFields::renameManifestations(const std::string& oldGUID, const std::string& newGUID) {
  for (SchemaElement& field : secol_) {
    if (!isManifestation(field) || !field.bValid()) continue;
    const StringList* members = asList(field.vContent());
    if (!members) continue;
    const auto at = std::find_if(members->begin(), members->end(), [&](const std::string& member) {
      return io_->bGUIDComp(member, oldGUID);
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

}  // namespace velra
