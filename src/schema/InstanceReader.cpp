// SPDX-License-Identifier: GPL-3.0-or-later
#include "schema/InstanceReader.h"

#include <optional>
#include <utility>

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/xml/XmlDocument.h"
#include "schema/SchemaElement.h"
#include "schema/SchemaFile.h"

namespace velra {

namespace {

std::optional<double> seconds(std::optional<std::string_view> milliseconds) {
  if (!milliseconds) return std::nullopt;
  const std::optional<double> value = toNumber(*milliseconds);
  if (!value) raise(kTypeMismatch, std::string(*milliseconds));
  return *value / 1000;
}

struct Times {
  std::optional<double> start;
  std::optional<double> end;
  bool complete() const { return start && end; }
};

Times timesOf(const XmlNode& node) {
  return {seconds(node.attribute("start")), seconds(node.attribute("end"))};
}

// A text stays in the document for now.
void readText(const XmlNode& node, SchemaElement& element) {
  const std::string_view text = node.typedText();
  element.setVContent(Value::borrowed(text));
  if (!text.empty()) element.setBValid(true);
}

void readDate(const XmlNode& node, SchemaElement& element) {
  const auto date = Date::fromIsoText(std::string(node.text()));
  if (!date) return;
  element.setVContent(*date);
  element.setBValid(true);
}

void readBool(const XmlNode& node, SchemaElement& element) {
  const std::string_view text = node.text();
  if (text != "false" && text != "true") return;
  element.setVContent(text == "true");
  element.setBValid(true);
}

void readSet(const XmlNode& node, SchemaElement& element) {
  StringList list;
  list.reserve(static_cast<std::size_t>(iChildElements(node)));
  for (XmlNode item = node.firstElement(); item; item = item.nextElement()) {
    const bool typed = element.tyType() == tyType::SetOfStrings;
    list.emplace_back(typed ? item.typedText() : item.text());
  }
  const bool usable = !list.empty();
  element.setVContent(std::move(list));
  if (usable) element.setBValid(true);
}

void readChunk(const XmlNode& node, SchemaElement& element) {
  auto chunk = std::make_shared<Chunk>();
  const Times times = timesOf(node);
  chunk->dStart = times.start.value_or(0);
  chunk->dend = times.end.value_or(0);
  chunk->strFile = node.text();
  element.setVContent(std::move(chunk));
  element.setBValid(times.complete());
}

void readWords(const XmlNode& node, SchemaElement& element) {
  auto words = std::make_shared<WordColl>();
  words->reserve(static_cast<std::size_t>(iChildElements(node)));
  for (XmlNode item = node.firstElement(); item; item = item.nextElement()) {
    const Times times = timesOf(item);
    if (times.complete())
      words->Add("", "", *times.start, *times.end, std::string(item.typedText()));
  }
  const bool usable = !words->empty();
  element.setVContent(std::move(words));
  if (usable) element.setBValid(true);
}

void readValue(const XmlNode& node, SchemaElement& element) {
  switch (element.tyType()) {
    case tyType::String:
      return readText(node, element);
    case tyType::Date:
      return readDate(node, element);
    case tyType::Bool:
      return readBool(node, element);
    case tyType::SetOfStrings:
    case tyType::SetOfGUIDs:
      return readSet(node, element);
    case tyType::ChunkTime:
      return readChunk(node, element);
    case tyType::WordList:
      return readWords(node, element);
    default:
      element.setVContent(Value::borrowed(node.typedText()));
      element.setBValid(true);
  }
}

void readElement(const XmlNode& node, SchemaElement& element) {
  readValue(node, element);
  element.setBChanged(false);
  if (!element.bValid()) element.setVContent({});
}

}  // namespace

std::string strReadInstance(const ApplicationModule& app, const XmlDocument& domDoc,
                            const std::string& strClassName, const ClassDeclaration& declaration,
                            std::span<SchemaElement> elements) {
  const XmlNode root = domDoc.documentElement();
  if (root.baseName() != strClassName)
    return strClassName + ": " + app.LoadResString(Message::ClassNameMismatch);
  const FieldTable& fields = *declaration.fields;
  const bool alone = declaration.offsets.size() == fields.size();
  std::size_t next = 0;  // programs write fields in the schema's order
  for (XmlNode node = root.firstElement(); node; node = node.nextElement()) {
    const std::string_view name = node.prefix().empty() ? node.baseName() : node.nodeName();
    if (alone && next < fields.size() && fields[next]->strName == name) {
      readElement(node, elements[next++]);
      continue;
    }
    const auto named = declaration.offsets.find(name);
    if (named == declaration.offsets.end()) continue;
    for (const std::size_t offset : named->second) readElement(node, elements[offset]);
    next = named->second.back() + 1;
  }
  return {};
}

}  // namespace velra
