// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/Cues.h"

#include <algorithm>
#include <array>

#include "exchange/ContentText.h"

namespace velra {

namespace {

constexpr std::size_t kLineLength = 42;
constexpr double kShortestCue = 1;
constexpr double kLongestCue = 7;
constexpr double kPause = 1.5;  // seconds of silence that end a cue

using WordSpan = std::vector<ContentWord>;

bool endsSentence(std::string_view word) {
  constexpr std::array<std::string_view, 8> kClosing{"\"", "'", ")", "]", "»", "”", "’", "“"};
  constexpr std::array<std::string_view, 8> kEnds{".", "!", "?", "…", "。", "！", "？", "؟"};
  const auto ends = [&](std::string_view mark) { return word.ends_with(mark); };
  for (auto at = kClosing.begin(); at != kClosing.end();) {
    at = std::find_if(kClosing.begin(), kClosing.end(), ends);
    if (at != kClosing.end()) word.remove_suffix(at->size());
  }
  return std::any_of(kEnds.begin(), kEnds.end(), ends);
}

std::string joined(const WordSpan& words, std::size_t from, std::size_t to) {
  std::string line;
  for (std::size_t i = from; i < to; ++i) line += (i == from ? "" : " ") + words[i].text;
  return line;
}

// The lines of a cue, of like length where they must be two; nothing when it has too many
// characters.
std::vector<std::string> cueLines(const WordSpan& words) {
  std::string whole = joined(words, 0, words.size());
  if (characters(whole) <= kLineLength || words.size() == 1) return {std::move(whole)};
  std::vector<std::string> best;
  std::size_t longest = kLineLength + 1;
  for (std::size_t i = 1; i < words.size(); ++i) {
    std::vector<std::string> lines{joined(words, 0, i), joined(words, i, words.size())};
    const std::size_t length = std::max(characters(lines[0]), characters(lines[1]));
    if (length >= longest) continue;
    longest = length;
    best = std::move(lines);
  }
  return best;
}

bool belongsToNext(const WordSpan& cue, const ContentWord& word) {
  const double lasts = cue.back().end - cue.front().start;
  if (word.start - cue.back().end >= kPause) return true;
  if (word.end - cue.front().start > kLongestCue) return true;
  if (lasts >= kShortestCue && endsSentence(cue.back().text)) return true;
  WordSpan longer = cue;
  longer.push_back(word);
  return cueLines(longer).empty();
}

// Cues that are too short stay as long as the next one allows.
void settleEnds(std::vector<Cue>& cues) {
  for (std::size_t i = 0; i < cues.size(); ++i) {
    Cue& cue = cues[i];
    cue.end = std::clamp(cue.end, cue.start + kShortestCue, cue.start + kLongestCue);
    if (i + 1 == cues.size()) continue;
    const double next = cues[i + 1].start;
    if (next > cue.start) cue.end = std::min(cue.end, next);
  }
}

}  // namespace

std::vector<Cue> cuesOf(const std::vector<ContentWord>& words) {
  std::vector<Cue> cues;
  WordSpan open;
  const auto close = [&] {
    if (open.empty()) return;
    cues.push_back({open.front().start, open.back().end, cueLines(open), open});
    open.clear();
  };
  for (const ContentWord& word : words) {
    if (!open.empty() && belongsToNext(open, word)) close();
    open.push_back(word);
  }
  close();
  settleEnds(cues);
  return cues;
}

}  // namespace velra
