// SPDX-License-Identifier: GPL-3.0-or-later

// Tables after RFC 4180: one row for each segment.
#include <algorithm>

#include "exchange/ContentText.h"
#include "exchange/ExportFormats.h"
#include "exchange/SegmentChoice.h"
#include "protocol/ClassRules.h"

namespace velra {

namespace {

using TableRow = std::vector<std::string>;

// Of these the fixed columns tell already.
bool isFixedColumn(const ContentField& field, const ContentObject& object) {
  const ClassRules& rules = rulesOf(object.kind);
  return field.name == rules.titleField || field.name == rules.identityField ||
         field.name == "Time";
}

// The fields of all classes that have expressions in the document, each name once.
std::vector<std::string> fieldColumns(const Content& content, const ExportOptions& options) {
  std::vector<std::string> names;
  for (const ContentObject& object : content.objects) {
    if (!isExpression(object.kind) || (options.kind && object.kind != *options.kind)) continue;
    for (const ContentField& field : object.fields) {
      const bool known = std::find(names.begin(), names.end(), field.name) != names.end();
      if (!known && !isFixedColumn(field, object)) names.push_back(field.name);
    }
  }
  return names;
}

// The members of a set stand on lines of their own, since any other separator may be part of one.
std::string cellOf(const ContentField* field) {
  if (!field) return {};
  std::string cell;
  if (field->span) {
    cell = secondsText(field->span->start) + '-' + secondsText(field->span->end);
    if (!field->texts.empty()) cell += ' ' + field->texts.front();
    return cell;
  }
  for (const ContentWord& word : field->words) cell += (cell.empty() ? "" : " ") + word.text;
  for (const std::string& text : field->texts) cell += (cell.empty() ? "" : "\n") + text;
  return cell;
}

void addTimes(const ContentObject& segment, TableRow& row) {
  if (!segment.time) {
    row.resize(row.size() + 5);
    return;
  }
  const auto [start, end] = *segment.time;
  row.push_back(timeCodeOf(start, segment.frameRate));
  row.push_back(timeCodeOf(end, segment.frameRate));
  row.push_back(secondsText(start));
  row.push_back(secondsText(end));
  row.push_back(secondsText(end - start));
}

TableRow rowOf(const Content& content, const ContentObject& segment,
               const std::vector<std::string>& columns) {
  TableRow row{classNameOf(segment.kind), std::to_string(segment.level),
               std::to_string(segment.number), segment.title};
  addTimes(segment, row);
  for (const std::string& name : columns) row.push_back(cellOf(segment.field(name)));
  row.push_back(segment.identifier);
  row.push_back(content.objects[segment.parent].identifier);
  row.push_back(segment.movie);
  return row;
}

std::string quotedCell(const std::string& cell, char separator) {
  const bool plain = cell.find_first_of(std::string("\"\r\n") + separator) == std::string::npos;
  if (plain) return cell;
  std::string quoted = "\"";
  for (const char character : cell) {
    if (character == '"') quoted += '"';
    quoted += character;
  }
  return quoted + '"';
}

std::string lineOf(const TableRow& row, char separator) {
  std::string line;
  for (const std::string& cell : row) {
    if (!line.empty() || &cell != &row.front()) line += separator;
    line += quotedCell(cell, separator);
  }
  return line + "\r\n";
}

Exported writeTable(const Content& content, const ExportOptions& options, char separator) {
  const std::vector<std::string> columns = fieldColumns(content, options);
  TableRow head{"class", "level",         "number",      "title",           "start",
                "end",   "start_seconds", "end_seconds", "duration_seconds"};
  head.insert(head.end(), columns.begin(), columns.end());
  head.insert(head.end(), {"identifier", "part_of", "movie"});
  Exported exported{lineOf(head, separator), {}};
  const ContentList segments = allSegments(content, options);
  for (const ContentObject* segment : segments) {
    exported.bytes += lineOf(rowOf(content, *segment, columns), separator);
  }
  exported.notes.push_back(std::to_string(segments.size()) + " segments.");
  return exported;
}

}  // namespace

const ExportFormat kCsvFormat{"csv",
                              "CSV",
                              "csv",
                              "a table of the segments, RFC 4180",
                              "class level of-version",
                              [](const Content& content, const ExportOptions& options) {
                                return writeTable(content, options, ',');
                              }};

const ExportFormat kTsvFormat{"tsv",
                              "TSV",
                              "tsv",
                              "the same with tabs",
                              "class level of-version",
                              [](const Content& content, const ExportOptions& options) {
                                return writeTable(content, options, '\t');
                              }};

}  // namespace velra
