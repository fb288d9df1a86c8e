// SPDX-License-Identifier: GPL-3.0-or-later

// WebVTT and SubRip: the words of a transcript, or segments as chapters.
#include "base/Text.h"
#include "exchange/ContentText.h"
#include "exchange/Cues.h"
#include "exchange/ExportFormats.h"
#include "exchange/SegmentChoice.h"

namespace velra {

namespace {

std::vector<Cue> chapterCues(const Content& content, const ExportOptions& options) {
  std::vector<Cue> cues;
  for (const ContentObject* segment : segmentsOfLevel(content, options)) {
    cues.push_back({segment->time->start, segment->time->end, {oneLine(segment->title)}});
  }
  return cues;
}

std::string vttText(const std::string& text) {
  return replaceAll(replaceAll(replaceAll(text, "&", "&amp;"), "<", "&lt;"), ">", "&gt;");
}

std::string cueText(const Cue& cue, std::size_t number, bool vtt) {
  const char sign = vtt ? '.' : ',';
  std::string text = std::to_string(number) + '\n' + clockText(cue.start, sign) + " --> " +
                     clockText(cue.end, sign) + '\n';
  for (const std::string& line : cue.lines) {
    // A blank line would end the cue.
    text += (line.empty() ? "-" : vtt ? vttText(line) : line) + '\n';
  }
  return text + '\n';
}

Exported writeCues(const Content& content, const ExportOptions& options, bool vtt) {
  if (!options.segments && (options.kind || options.level)) {
    // What a person wants with them is plain.
    ExportOptions segments = options;
    segments.segments = true;
    return writeCues(content, segments, vtt);
  }
  const std::vector<Cue> cues =
      options.segments ? chapterCues(content, options) : cuesOf(spokenWords(content, options));
  Exported exported{vtt ? "WEBVTT\n\n" : "", {}};
  std::size_t number = 0;
  for (const Cue& cue : cues) exported.bytes += cueText(cue, ++number, vtt);
  const char* what = options.segments ? " chapters." : " cues.";
  exported.notes.push_back(std::to_string(cues.size()) + what);
  return exported;
}

constexpr std::string_view kCueOptions = "segments class level of-version";

}  // namespace

const ExportFormat kWebVttFormat{"vtt", "vtt", "the transcript, or --segments, as WebVTT",
                                 kCueOptions,
                                 [](const Content& content, const ExportOptions& options) {
                                   return writeCues(content, options, true);
                                 }};

const ExportFormat kSubRipFormat{"srt", "srt", "the transcript, or --segments, as SubRip",
                                 kCueOptions,
                                 [](const Content& content, const ExportOptions& options) {
                                   return writeCues(content, options, false);
                                 }};

}  // namespace velra
