// SPDX-License-Identifier: GPL-3.0-or-later

// One JSON object a line for each object of the document, after RFC 8259.
#include <algorithm>
#include <nlohmann/json.hpp>

#include "base/Text.h"
#include "exchange/ContentText.h"
#include "exchange/ExportFormats.h"
#include "exchange/FieldTypeNames.h"

namespace velra {

namespace {

using Json = nlohmann::ordered_json;

double jsonSeconds(double seconds) {
  return static_cast<double>(milliseconds(seconds)) / 1000;
}

Json jsonSpan(const ContentSpan& span) {
  return {{"start", jsonSeconds(span.start)}, {"end", jsonSeconds(span.end)}};
}

// Texts of numbers are not checked when a document is read; one that is none stays a text.
Json jsonNumber(const std::string& text, bool whole) {
  constexpr double kMostWhole = 9e15;  // beyond it not every whole number is one
  const auto number = toNumber(text);
  if (!number) return text;
  const bool isWhole = std::abs(*number) < kMostWhole &&
                       *number == static_cast<double>(static_cast<std::int64_t>(*number));
  if (whole && isWhole) return static_cast<std::int64_t>(*number);
  return whole ? Json(text) : Json(*number);
}

Json jsonWords(const std::vector<ContentWord>& words) {
  Json list = Json::array();
  for (const ContentWord& word : words) {
    Json entry = jsonSpan({word.start, word.end});
    entry["text"] = word.text;
    list.push_back(std::move(entry));
  }
  return list;
}

Json jsonValue(const ContentField& field) {
  const std::string text = field.texts.empty() ? std::string() : field.texts.front();
  switch (field.type) {
    case tyType::SetOfStrings:
    case tyType::SetOfGUIDs:
      return field.texts;
    case tyType::WordList:
      return jsonWords(field.words);
    case tyType::Integer:
    case tyType::Real:
      return jsonNumber(text, field.type == tyType::Integer);
    case tyType::Bool:
      return text == "true";
    default:
      break;
  }
  if (!field.span) return text;
  Json span = jsonSpan(*field.span);
  if (!text.empty()) span["file"] = text;
  return span;
}

Json jsonField(const ContentField& field) {
  Json entry{{"type", fieldTypeName(field.type)}, {"value", jsonValue(field)}};
  for (const Translations& names : field.translations) {
    Json languages;  // null for what is no name of the vocabulary
    for (std::size_t i = 0; i < names.size() && !names[0].empty(); ++i) {
      languages[kContentLanguages[i]] = names[i];
    }
    entry["languages"].push_back(std::move(languages));
  }
  return entry;
}

Json jsonParents(const Content& content, const ContentObject& object) {
  std::vector<std::string> parents;
  for (std::size_t at = object.parent; at != kNoContent; at = content.objects[at].parent) {
    parents.push_back(content.objects[at].identifier);
  }
  std::reverse(parents.begin(), parents.end());
  return parents;
}

Json jsonObject(const Content& content, const ContentObject& object) {
  Json entry{{"class", classNameOf(object.kind)},
             {"identifier", object.identifier},
             {"title", object.title},
             {"parents", jsonParents(content, object)},
             {"number", object.number}};
  if (isExpression(object.kind)) entry["level"] = object.level;
  if (object.time) entry["time"] = jsonSpan(*object.time);
  if (!object.movie.empty()) entry["movie"] = object.movie;
  Json fields = Json::object();
  for (const ContentField& field : object.fields) {
    if (field.assigned) fields[field.name] = jsonField(field);
  }
  entry["fields"] = std::move(fields);
  return entry;
}

Exported writeJsonLines(const Content& content, const ExportOptions&) {
  Exported exported;
  for (const ContentObject& object : content.objects) {
    // Paths may be no UTF-8, which JSON has to be.
    exported.bytes +=
        jsonObject(content, object).dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
  }
  exported.notes.push_back(std::to_string(content.objects.size()) + " objects.");
  return exported;
}

}  // namespace

const ExportFormat kJsonLinesFormat{"jsonl", "JSON Lines",
                                    "jsonl", "every object as one line of JSON, for databases",
                                    "",      writeJsonLines};

}  // namespace velra
