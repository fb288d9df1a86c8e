// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/DocumentState.h"

#include "base/Text.h"
#include "objects/Version.h"
#include "protocol/Expression.h"
#include "protocol/OpenDocument.h"
#include "schema/SEColl.h"
#include "store/ObjectRegistry.h"

namespace velra::test {

namespace {

std::string textOf(const Value& value) {
  if (const StringList* list = asList(value)) {
    std::string text = "{";
    for (const std::string& member : *list) text += member + ";";
    return text + "}";
  }
  if (const auto chunk = asChunk(value)) {
    return numberText(chunk->dStart) + ".." + numberText(chunk->dend) + " " + chunk->strFile;
  }
  if (const auto words = asWords(value)) {
    std::string text;
    for (const WordItem& word : *words) text += numberText(word.dStart) + word.strTxt + " ";
    return text;
  }
  return toText(value);
}

std::string fieldsOf(const SEColl& fields) {
  std::string text;
  for (const SchemaElement& field : fields) {
    if (!field.bValid() && !field.bChanged()) continue;
    text += " " + field.strName() + (field.bChanged() ? "*" : "") + (field.bValid() ? "=" : "!") +
            textOf(field.vContent());
  }
  return text;
}

template <class Object>
std::string identifierOf(const std::shared_ptr<Object>& object) {
  return object ? object->strGUID() : "nothing";
}

}  // namespace

std::string linksOf(const RegisteredObject& registered) {
  std::string text = registered.className() + " " + registered.strGUID() + ":";
  const auto* object = as<const DescribedObject>(&registered);
  if (!object) return text;
  for (const ObjectRef& child : object->colChilds()) text += " " + identifierOf(child);
  const auto* expression = as<const Expression>(object);
  if (!expression) return text;
  for (const auto& segment : expression->colSubExpressions()) text += " " + identifierOf(segment);
  return text + " next " + identifierOf(expression->objFollowedBy()) + " in " +
         identifierOf(expression->objMainExpr()) + " of " + identifierOf(expression->verVersion());
}

std::string stateOf(const RegisteredObject& registered) {
  std::string text = linksOf(registered) + (registered.bChanged() ? " changed" : "");
  const auto* object = as<const DescribedObject>(&registered);
  if (!object) return text;
  if (const auto* version = as<const Version>(object)) {
    text += " main expressions " + identifierOf(version->vdMainVideo()) + " " +
            identifierOf(version->auMainAudio()) + " " + identifierOf(version->trMainTranscript());
  }
  return text + fieldsOf(object->secol());
}

std::vector<std::string> stateOf(OpenDocument& document) {
  std::vector<std::string> states;
  for (const auto& [number, object] : document.collObjects().sequence()) {
    states.push_back(stateOf(*object));
  }
  return states;
}

}  // namespace velra::test
