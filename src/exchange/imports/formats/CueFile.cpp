// SPDX-License-Identifier: GPL-3.0-or-later

// WebVTT and SubRip: cues become words, and segments where that is wanted.
#include <algorithm>
#include <array>

#include "base/Text.h"
#include "exchange/ContentText.h"
#include "exchange/ExchangeFailure.h"
#include "exchange/imports/CueText.h"
#include "exchange/imports/ImportFormats.h"
#include "exchange/imports/ImportText.h"

namespace velra {

namespace {

constexpr std::string_view kCueArrow = "-->";

using CueBlock = std::vector<std::string>;

// Lines up to an empty one belong together.
std::vector<CueBlock> cueBlocks(const std::string& text) {
  std::vector<CueBlock> blocks(1);
  for (const std::string& line : linesOf(text)) {
    if (!trimmed(line).empty()) {
      blocks.back().push_back(line);
    } else if (!blocks.back().empty()) {
      blocks.emplace_back();
    }
  }
  if (blocks.back().empty()) blocks.pop_back();
  return blocks;
}

// The line with the times, behind the number or name of the cue; none in notes and styles.
std::size_t timesLine(const CueBlock& block) {
  std::size_t line = 0;
  while (line < block.size() && line < 2 && block[line].find(kCueArrow) == std::string::npos) {
    ++line;
  }
  return line < block.size() && line < 2 ? line : block.size();
}

bool isNoCue(const CueBlock& block) {
  constexpr std::array<std::string_view, 3> kOthers{"NOTE", "STYLE", "REGION"};
  return std::any_of(kOthers.begin(), kOthers.end(),
                     [&](std::string_view name) { return block.front().starts_with(name); });
}

// Places of the text, in braces, belong to the form as marks do.
std::string withoutBraces(std::string text) {
  for (std::size_t at = 0; (at = text.find("{\\", at)) != std::string::npos;) {
    const std::size_t close = text.find('}', at);
    if (close == std::string::npos) break;
    text.erase(at, close - at + 1);
  }
  return text;
}

std::string titleOf(const std::vector<ContentWord>& words) {
  std::string title;
  for (const ContentWord& word : words) title += (title.empty() ? "" : " ") + word.text;
  return title;
}

void readCue(const CueBlock& block, std::size_t line, int row, bool vtt, Proposal& proposal) {
  const std::string& times = block[line];
  const std::size_t arrow = times.find(kCueArrow);
  const auto start = timeInText(times.substr(0, arrow), 0);
  // Settings of the place may stand behind.
  const std::string behind = oneLine(times.substr(arrow + kCueArrow.size()));
  const auto end = timeInText(behind.substr(0, behind.find(' ')), 0);
  if (!start || !end || *end < *start) {
    proposal.refused.push_back({row, Message::RowWithoutTimes, {}});
    return;
  }
  std::string text;
  for (std::size_t i = line + 1; i < block.size(); ++i) text += block[i] + '\n';
  const auto words = wordsOfCue(vtt ? text : withoutBraces(std::move(text)), *start, *end, vtt);
  if (words.empty()) return;
  proposal.segments.push_back({row, *start, *end, titleOf(words), 1, {}, {}});
  proposal.cues.push_back({row, words});
}

Proposal readCues(const std::string& text, bool vtt) {
  if (vtt && !text.starts_with("WEBVTT")) {
    throw ExchangeFailure("It is no WebVTT: its first line is not \"WEBVTT\".");
  }
  Proposal proposal;
  int row = 0;
  for (const CueBlock& block : cueBlocks(text)) {
    const std::size_t line = timesLine(block);
    if (line < block.size() && !(vtt && isNoCue(block))) readCue(block, line, ++row, vtt, proposal);
  }
  if (row == 0) throw ExchangeFailure("There are no cues in it.");
  return proposal;
}

constexpr std::string_view kCueImportOptions = "segments replace";

}  // namespace

const ImportFormat kWebVttImport{
    "vtt",
    "WebVTT",
    "vtt",
    "cues of WebVTT as words",
    kCueImportOptions,
    true,
    [](const std::string& text, const ImportOptions&, double) { return readCues(text, true); }};

const ImportFormat kSubRipImport{
    "srt",
    "SubRip",
    "srt",
    "cues of SubRip as words",
    kCueImportOptions,
    true,
    [](const std::string& text, const ImportOptions&, double) { return readCues(text, false); }};

}  // namespace velra
