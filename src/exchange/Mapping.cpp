// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/Mapping.h"

#include <algorithm>

#include "base/Paths.h"
#include "base/Text.h"
#include "exchange/ExchangeFailure.h"
#include "platform/files/Files.h"

namespace velra {

Mapping::Mapping(const Content& content, const ExportOptions& options, const std::string& standard,
                 const KnowsElement& knows)
    : path_(options.mapping.empty() ? folderOf(content.schema) + "mappings/" + standard + ".map"
                                    : options.mapping) {
  const FileBytes file = readFile(path_);
  if (!file.reason.empty()) throw ExchangeFailure("The mapping " + path_ + ": " + file.reason);
  int number = 0;
  for (const std::string& line : split(file.bytes, '\n')) {
    readLine(++number, std::string(trimmed(line)), knows);
  }
  if (!options.mapping.empty()) checkFields(content);
}

void Mapping::refuse(int line, const std::string& what) const {
  throw ExchangeFailure(path_ + ", line " + std::to_string(line) + ": " + what);
}

void Mapping::readLine(int number, const std::string& line, const KnowsElement& knows) {
  if (line.empty() || line.starts_with('#')) return;
  const std::size_t sign = line.find('=');
  const std::string name(trimmed(line.substr(0, sign)));
  const std::size_t point = name.find('.');
  if (sign == std::string::npos || point == std::string::npos) {
    refuse(number, "\"" + line + "\" is not of the form Class.Field = element.");
  }
  const auto kind = kindOfRoot(name.substr(0, point));
  if (!kind) refuse(number, name + ": there is no class of that name.");
  const std::string target(trimmed(line.substr(sign + 1)));
  const std::size_t blank = target.find(' ');
  const std::string element = target.substr(0, blank);
  if (!knows(*kind, element)) {
    refuse(number, name + ": there is no element \"" + element + "\" for this class.");
  }
  const std::string qualifier = blank == std::string::npos ? "" : target.substr(blank);
  rules_.push_back(
      {number, *kind, name.substr(point + 1), element, std::string(trimmed(qualifier))});
}

// A class of which the document has no object says nothing of its fields.
void Mapping::checkFields(const Content& content) const {
  for (const Rule& rule : rules_) {
    const auto object =
        std::find_if(content.objects.begin(), content.objects.end(),
                     [&](const ContentObject& one) { return one.kind == rule.kind; });
    if (object == content.objects.end()) continue;
    const bool known =
        std::any_of(object->fields.begin(), object->fields.end(),
                    [&](const ContentField& field) { return field.name == rule.field; });
    if (known) continue;
    refuse(rule.line,
           classNameOf(rule.kind) + '.' + rule.field + ": the schema has no such field.");
  }
}

void Mapping::addValue(const Rule& rule, const ContentField& field, std::size_t number,
                       std::vector<MappedValue>& values) {
  const bool known = !field.translations.empty() && !field.translations[number][0].empty();
  if (!known) return values.push_back({rule.element, rule.qualifier, field.texts[number], ""});
  for (std::size_t i = 0; i < kContentLanguages.size(); ++i) {
    values.push_back(
        {rule.element, rule.qualifier, field.translations[number][i], kContentLanguages[i]});
  }
}

std::vector<MappedValue> Mapping::valuesOf(const ContentObject& object) const {
  std::vector<MappedValue> values;
  for (const ContentField* field : readableFields(object)) {
    for (const Rule& rule : rules_) {
      if (rule.kind != object.kind || rule.field != field->name) continue;
      for (std::size_t i = 0; i < field->texts.size(); ++i) addValue(rule, *field, i, values);
    }
  }
  return values;
}

std::vector<const ContentField*> Mapping::readableFields(const ContentObject& object) {
  std::vector<const ContentField*> fields;
  for (const ContentField& field : object.fields) {
    const bool readable = field.type <= tyType::CloseList && !field.linking;
    if (field.assigned && readable && !field.texts.empty()) fields.push_back(&field);
  }
  return fields;
}

std::vector<Mapping::Unmapped> Mapping::unmapped(const ContentObject& object) const {
  std::vector<Unmapped> left;
  for (const ContentField* field : readableFields(object)) {
    const bool mapped = std::any_of(rules_.begin(), rules_.end(), [&](const Rule& rule) {
      return rule.kind == object.kind && rule.field == field->name;
    });
    if (mapped) continue;
    for (const std::string& text : field->texts) {
      left.push_back({classNameOf(object.kind) + '.' + field->name, text});
    }
  }
  return left;
}

}  // namespace velra
