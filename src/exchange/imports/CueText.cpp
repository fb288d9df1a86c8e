// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/imports/CueText.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "base/Text.h"
#include "exchange/ContentText.h"
#include "exchange/imports/ImportText.h"
#include "values/TimeCode.h"

namespace velra {

namespace {

// A word with the times that its cue tells, if any.
struct CueWord {
  std::string text;
  std::optional<double> start;
  std::optional<double> end;
};

std::string withoutEntities(const std::string& text) {
  std::string plain = text;
  const std::pair<const char*, const char*> kNames[] = {
      {"&lt;", "<"},       {"&gt;", ">"},    {"&nbsp;", "\u00A0"}, {"&lrm;", "\u200E"},
      {"&rlm;", "\u200F"}, {"&quot;", "\""}, {"&#39;", "'"},       {"&amp;", "&"}};
  for (const auto& [name, sign] : kNames) plain = replaceAll(std::move(plain), name, sign);
  return plain;
}

// What players of SubRip take for marks; anything else in such brackets is text.
bool isMark(std::string inside) {
  if (inside.starts_with('/')) inside.erase(0, 1);
  const std::string name = asciiLower(inside.substr(0, inside.find_first_of(" .\t")));
  constexpr std::array<std::string_view, 5> kMarks{"i", "b", "u", "s", "font"};
  return std::find(kMarks.begin(), kMarks.end(), name) != kMarks.end();
}

class CueSplitter {
 public:
  explicit CueSplitter(bool vtt) : vtt_(vtt) {}

  std::vector<CueWord> split(const std::string& text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
      const std::size_t close = text[i] == '<' ? text.find('>', i) : std::string::npos;
      if (close != std::string::npos && mark(text.substr(i + 1, close - i - 1))) {
        i = close;
      } else if (text[i] == ' ' || text[i] == '\n' || text[i] == '\t') {
        closeWord();
      } else {
        openWord();
        words_.back().text += text[i];
      }
    }
    return std::move(words_);
  }

 private:
  // False for what is text.
  bool mark(const std::string& inside) {
    if (!vtt_) return isMark(inside);
    const bool clock = inside.find(':') != std::string::npos;
    if (const auto time = clock ? timeInText(inside, 0) : std::nullopt) stamp(*time);
    return true;
  }

  void stamp(double time) {
    if (open_) {
      words_.back().end = time;
      closeWord();
      gap_.reset();
    } else {
      gap_ = time;
    }
  }

  void openWord() {
    if (open_) return;
    open_ = true;
    words_.push_back({{}, std::exchange(gap_, std::nullopt), {}});
  }

  void closeWord() { open_ = false; }

  const bool vtt_;
  std::vector<CueWord> words_;
  std::optional<double> gap_;  // a time that stands before the next word
  bool open_ = false;
};

double weightOf(const CueWord& word) {
  return static_cast<double>(characters(word.text)) + 1;
}

// Spreads words from one to another over a time.
void spread(const std::vector<CueWord>& from, std::size_t first, std::size_t last, double start,
            double end, std::vector<ContentWord>& words) {
  double whole = 0;
  for (std::size_t i = first; i <= last; ++i) whole += weightOf(from[i]);
  double passed = 0;
  double begin = start;
  for (std::size_t i = first; i <= last; ++i) {
    passed += weightOf(from[i]);
    const double stop =
        i == last ? end : inWholeMilliseconds(start + (end - start) * passed / whole);
    words.push_back({begin, stop, from[i].text});
    begin = stop;
  }
}

// What one word says of its neighbour: where a word begins at no time of its own it follows the one
// before it.
void completeTimes(std::vector<CueWord>& words, double start, double end) {
  if (!words.front().start) words.front().start = start;
  if (!words.back().end) words.back().end = end;
  for (std::size_t i = 0; i + 1 < words.size(); ++i) {
    if (words[i].end && !words[i + 1].start) words[i + 1].start = words[i].end;
    if (!words[i].end && words[i + 1].start) words[i].end = words[i + 1].start;
  }
}

}  // namespace

std::vector<ContentWord> wordsOfCue(const std::string& text, double start, double end, bool vtt) {
  std::vector<CueWord> split = CueSplitter(vtt).split(text);
  std::vector<ContentWord> words;
  if (split.empty()) return words;
  completeTimes(split, start, end);
  if (vtt) {
    for (CueWord& word : split) word.text = withoutEntities(word.text);
  }
  for (std::size_t first = 0; first < split.size();) {
    std::size_t last = first;
    while (!split[last].end) ++last;
    const double from = std::clamp(*split[first].start, start, end);
    spread(split, first, last, from, std::clamp(*split[last].end, from, end), words);
    first = last + 1;
  }
  return words;
}

}  // namespace velra
