// SPDX-License-Identifier: GPL-3.0-or-later
#include "schema/InstanceWriter.h"

#include <string>

#include "base/Arithmetic.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/xml/XmlWriter.h"
#include "schema/SchemaElement.h"

namespace velra {

namespace {

std::string milliseconds(double seconds) {
  return numberText(roundHalfEven(seconds * 1000));
}

std::string boolText(const Value& value) {
  const std::string text = toText(value);
  return text == "True" || text == "true" || text == "1" ? "true" : "false";
}

std::string dateText(const Value& value) {
  const std::string text = toText(value);
  const auto date = Date::fromUserText(text);
  return date ? date->isoText() : text;
}

void writeSet(const SchemaElement& element, const char* itemName, XmlWriter& domDoc) {
  domDoc.addElement(element.strName(), "");
  const StringList* list = asList(element.vContent());
  if (!list) raise(kNoObject, element.strName());
  for (const std::string& item : *list) domDoc.addChild(itemName, item);
}

void writeChunk(const SchemaElement& element, XmlWriter& domDoc) {
  const auto chunk = asChunk(element.vContent());
  if (!chunk) raise(kNoObject, element.strName());
  domDoc.addElement(element.strName(), chunk->strFile,
                    {{"start", milliseconds(chunk->dStart)},
                     {"end", milliseconds(chunk->dend)},
                     {"reasons", "0"}});
}

void writeWords(const SchemaElement& element, XmlWriter& domDoc) {
  const auto words = asWords(element.vContent());
  if (!words) raise(kNoObject, element.strName());
  domDoc.addElement(element.strName(), "");
  for (const WordItem& word : *words) {
    domDoc.addChild("Word", word.strTxt,
                    {{"start", milliseconds(word.dStart)}, {"end", milliseconds(word.dend)}});
  }
}

void writeField(const SchemaElement& element, XmlWriter& domDoc) {
  switch (element.tyType()) {
    case tyType::Date:
      return domDoc.addElement(element.strName(), dateText(element.vContent()));
    case tyType::Bool:
      return domDoc.addElement(element.strName(), boolText(element.vContent()));
    case tyType::SetOfStrings:
      return writeSet(element, "StringItem", domDoc);
    case tyType::SetOfGUIDs:
      return writeSet(element, "GUID", domDoc);
    case tyType::ChunkTime:
      return writeChunk(element, domDoc);
    case tyType::WordList:
      return writeWords(element, domDoc);
    default:
      if (const auto text = element.vContent().text()) {
        return domDoc.addElement(element.strName(), *text);
      }
      return domDoc.addElement(element.strName(), toText(element.vContent()));
  }
}

}  // namespace

void WriteInstance(std::span<const SchemaElement> elements, XmlWriter& domDoc) {
  for (const SchemaElement& element : elements) {
    if (element.bValid()) writeField(element, domDoc);
  }
}

}  // namespace velra
