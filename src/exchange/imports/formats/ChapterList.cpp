// SPDX-License-Identifier: GPL-3.0-or-later

// FFmpeg's metadata file: its chapters.
#include "base/Text.h"
#include "exchange/ExchangeFailure.h"
#include "exchange/imports/ImportFormats.h"
#include "exchange/imports/ImportText.h"
#include "values/TimeCode.h"

namespace velra {

namespace {

// "\" takes its meaning from the character behind it, a line end too.
std::string unescaped(const std::string& text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\\' && i + 1 < text.size()) ++i;
    plain += text[i];
  }
  return plain;
}

// Lines, those that end in a "\" together with the next one.
std::vector<std::string> metadataLines(const std::string& text) {
  std::vector<std::string> lines;
  bool continues = false;
  for (const std::string& line : linesOf(text)) {
    if (continues) {
      lines.back() += '\n' + line;
    } else {
      lines.push_back(line);
    }
    const std::size_t last = line.find_last_not_of('\\');
    const std::size_t signs = line.size() - (last == std::string::npos ? 0 : last + 1);
    continues = signs % 2 == 1;
  }
  return lines;
}

class ChapterReader {
 public:
  // Chapters come one after the other; what stands before the first is about the movie.
  void line(const std::string& text) {
    if (text.starts_with('[')) {
      close();
      if (text.starts_with("[CHAPTER]")) open_ = {++count_, {}, {}, {}, 1e-9};
      return;
    }
    const std::size_t sign = text.find('=');
    if (!open_ || text.starts_with(';') || text.starts_with('#') || sign == std::string::npos) {
      return;
    }
    const std::string name = asciiLower(trimmed(text.substr(0, sign)));
    const std::string value = text.substr(sign + 1);
    if (name == "timebase") open_->unit = unitOf(value);
    if (name == "start") open_->start = toNumber(value);
    if (name == "end") open_->end = toNumber(value);
    if (name == "title") open_->title = unescaped(value);
  }

  void close() {
    if (!open_) return;
    const Chapter chapter = *open_;
    open_.reset();
    const bool usable = chapter.start && chapter.end && *chapter.start >= 0 && chapter.unit > 0;
    const double end = usable ? *chapter.end * chapter.unit : 0;
    constexpr double kLatest = 1e6;
    if (!usable || !(end < kLatest) || !(*chapter.start * chapter.unit < kLatest)) {
      proposal_.refused.push_back({chapter.row, Message::RowWithoutTimes, {}});
      return;
    }
    // Titles are no duty of the format.
    const std::string title =
        trimmed(chapter.title).empty() ? "Chapter " + std::to_string(chapter.row) : chapter.title;
    proposal_.segments.push_back({chapter.row,
                                  inWholeMilliseconds(*chapter.start * chapter.unit),
                                  inWholeMilliseconds(end),
                                  title,
                                  1,
                                  {},
                                  {}});
  }

  Proposal take() { return std::move(proposal_); }

 private:
  struct Chapter {
    int row = 0;
    std::optional<double> start;
    std::optional<double> end;
    std::string title;
    double unit = 1e-9;  // seconds
  };

  // "1/1000"; 0 for what is none.
  static double unitOf(const std::string& text) {
    const std::size_t slash = text.find('/');
    const auto over = toNumber(text.substr(0, slash));
    const auto under =
        slash == std::string::npos ? std::optional(1.0) : toNumber(text.substr(slash + 1));
    return over && under && *over > 0 && *under > 0 ? *over / *under : 0;
  }

  int count_ = 0;
  std::optional<Chapter> open_;
  Proposal proposal_;
};

Proposal readChapters(const std::string& text, const ImportOptions&, double) {
  if (!text.starts_with(";FFMETADATA")) {
    throw ExchangeFailure(
        "It is no metadata file of FFmpeg: its first line is not \";FFMETADATA1\".");
  }
  ChapterReader reader;
  for (const std::string& line : metadataLines(text)) reader.line(line);
  reader.close();
  return reader.take();
}

}  // namespace

const ImportFormat kChaptersImport{
    "chapters", "FFmpeg", "ffmeta ffmetadata", "chapters of FFmpeg's metadata",
    "",         false,    readChapters};

}  // namespace velra
