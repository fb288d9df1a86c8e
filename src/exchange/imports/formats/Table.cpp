// SPDX-License-Identifier: GPL-3.0-or-later

// Tables with a row for each segment, as programs of many kinds write them.
#include <algorithm>
#include <array>

#include "base/Text.h"
#include "exchange/ExchangeFailure.h"
#include "exchange/imports/ImportFormats.h"
#include "exchange/imports/ImportText.h"

namespace velra {

namespace {

using TableCells = std::vector<std::string>;

struct TableLine {
  int row = 0;  // the line of the file on which it begins
  TableCells cells;
};

// Splits by RFC 4180: a quoted cell may hold separators, line ends, and quotes that are doubled.
std::vector<TableLine> tableLines(const std::string& text, char separator) {
  std::vector<TableLine> lines;
  TableLine line{1, {""}};
  bool quoted = false;
  int row = 1;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char character = text[i];
    std::string& cell = line.cells.back();
    if (character == '\n') ++row;
    if (quoted && character == '"' && i + 1 < text.size() && text[i + 1] == '"') {
      cell += text[++i];
    } else if (character == '"' && (quoted || cell.empty())) {
      quoted = !quoted;
    } else if (quoted || (character != separator && character != '\n')) {
      cell += character;
    } else if (character == separator) {
      line.cells.emplace_back();
    } else {
      lines.push_back(std::exchange(line, {row, {""}}));
    }
  }
  lines.push_back(std::move(line));
  std::erase_if(lines, [](const TableLine& one) {
    return std::all_of(one.cells.begin(), one.cells.end(),
                       [](const std::string& cell) { return trimmed(cell).empty(); });
  });
  if (quoted) throw ExchangeFailure("A quotation mark is not closed: the table is cut off.");
  return lines;
}

// The one that the first line has most of.
char separatorOf(const std::string& text) {
  const std::string first = text.substr(0, text.find('\n'));
  constexpr std::array<char, 3> kSeparators{',', ';', '\t'};
  return *std::max_element(kSeparators.begin(), kSeparators.end(), [&](char a, char b) {
    return std::count(first.begin(), first.end(), a) < std::count(first.begin(), first.end(), b);
  });
}

class TableReader {
 public:
  TableReader(const TableCells& head, double rate) : head_(head), rate_(rate) {
    start_ = column({"start_seconds", "start", "in", "begin", "start time", "inizio"});
    end_ = column({"end_seconds", "end", "out", "end time", "fine"});
    title_ = column({"title", "name", "titolo"});
    if (start_ < head.size() && end_ < head.size() && title_ < head.size()) return;
    throw ExchangeFailure("The first line of the table has to name the columns start, end, title.");
  }

  void read(const TableLine& line, Proposal& proposal) const {
    const auto start = timeInText(cell(line, start_), rate_);
    const auto end = timeInText(cell(line, end_), rate_);
    if (!start || !end) {
      proposal.refused.push_back({line.row, Message::RowWithoutTimes, {}});
      return;
    }
    ProposedSegment segment{line.row, *start, *end, cell(line, title_), 1, {}, {}};
    readPlace(line, segment);
    // This program's own tables have a span and a file there.
    const std::string keyFrame = cell(line, column({"keyframe"}));
    segment.keyFrame = timeInText(keyFrame.substr(0, keyFrame.find('-')), rate_);
    for (std::size_t i = 0; i < line.cells.size() && i < head_.size(); ++i) {
      if (i != start_ && i != end_ && i != title_) {
        segment.fields.emplace_back(trimmed(head_[i]), line.cells[i]);
      }
    }
    proposal.segments.push_back(std::move(segment));
  }

 private:
  std::size_t column(std::initializer_list<std::string_view> names) const {
    for (const std::string_view name : names) {
      for (std::size_t i = 0; i < head_.size(); ++i) {
        if (equalIgnoringAsciiCase(trimmed(head_[i]), name)) return i;
      }
    }
    return head_.size();
  }

  static std::string cell(const TableLine& line, std::size_t column) {
    return column < line.cells.size() ? line.cells[column] : std::string();
  }

  // The columns by which this program's own tables tell where a segment belongs.
  void readPlace(const TableLine& line, ProposedSegment& segment) const {
    constexpr double kDeepest = 100;
    const auto level = toNumber(cell(line, column({"level"})));
    if (level && *level >= 1 && *level <= kDeepest) segment.level = static_cast<int>(*level);
    const auto kind = kindOfRoot(cell(line, column({"class"})));
    if (kind && isExpression(*kind)) segment.kind = kind;
  }

  const TableCells& head_;
  double rate_;
  std::size_t start_ = 0;
  std::size_t end_ = 0;
  std::size_t title_ = 0;
};

Proposal readTable(const std::string& text, const ImportOptions&, double rate) {
  const std::vector<TableLine> lines = tableLines(text, separatorOf(text));
  if (lines.empty()) throw ExchangeFailure("The table has no lines.");
  const TableReader reader(lines.front().cells, rate);
  Proposal proposal;
  for (std::size_t i = 1; i < lines.size(); ++i) reader.read(lines[i], proposal);
  return proposal;
}

}  // namespace

const ImportFormat kTableImport{
    "csv",     "CSV",
    "csv tsv", "a table with the columns start, end and title, and fields by their names",
    "rate",    false,
    readTable};

}  // namespace velra
