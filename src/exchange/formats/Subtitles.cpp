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
    cues.push_back({segment->time->start, segment->time->end, {oneLine(segment->title)}, {}});
  }
  return cues;
}

std::string vttText(const std::string& text) {
  return replaceAll(replaceAll(replaceAll(text, "&", "&amp;"), "<", "&lt;"), ">", "&gt;");
}

// The lines of a cue with the times of its words, by which they can be read back as they were. A
// time has to lie behind the one before it, and within the cue.
class TimedLines {
 public:
  explicit TimedLines(const Cue& cue) : cue_(cue), last_(milliseconds(cue.start)) {}

  std::string text() {
    std::string all;
    std::size_t next = 0;
    for (const std::string& line : cue_.lines) {
      std::size_t length = 0;
      do {
        const ContentWord& word = cue_.words[next];
        if (length > 0) all += ' ';
        length += (length > 0 ? 1 : 0) + word.text.size();
        all += stamp(word.start);
        all += vttText(word.text);
        all += stamp(word.end);
        ++next;
      } while (length < line.size());
      all += '\n';
    }
    return all;
  }

 private:
  std::string stamp(double seconds) {
    const std::int64_t time = milliseconds(seconds);
    if (time <= last_ || time >= milliseconds(cue_.end)) return {};
    last_ = time;
    return '<' + clockText(seconds) + '>';
  }

  const Cue& cue_;
  std::int64_t last_;
};

std::string cueText(const Cue& cue, std::size_t number, bool vtt, bool timed) {
  const char sign = vtt ? '.' : ',';
  std::string text = std::to_string(number) + '\n' + clockText(cue.start, sign) + " --> " +
                     clockText(cue.end, sign) + '\n';
  if (timed && !cue.words.empty()) return text + TimedLines(cue).text() + '\n';
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
  for (const Cue& cue : cues) {
    exported.bytes += cueText(cue, ++number, vtt, vtt && !options.plain);
  }
  const char* what = options.segments ? " chapters." : " cues.";
  exported.notes.push_back(std::to_string(cues.size()) + what);
  return exported;
}

constexpr std::string_view kCueOptions = "segments class level of-version";

}  // namespace

const ExportFormat kWebVttFormat{"vtt",
                                 "WebVTT",
                                 "vtt",
                                 "the transcript, or --segments, as WebVTT",
                                 "segments plain class level of-version",
                                 [](const Content& content, const ExportOptions& options) {
                                   return writeCues(content, options, true);
                                 }};

const ExportFormat kSubRipFormat{"srt",
                                 "SubRip",
                                 "srt",
                                 "the transcript, or --segments, as SubRip",
                                 kCueOptions,
                                 [](const Content& content, const ExportOptions& options) {
                                   return writeCues(content, options, false);
                                 }};

}  // namespace velra
