// SPDX-License-Identifier: GPL-3.0-or-later

// CMX 3600 edit decision lists.
#include <cstdio>

#include "base/Paths.h"
#include "exchange/ContentText.h"
#include "exchange/ExchangeFailure.h"
#include "exchange/ExportFormats.h"
#include "exchange/FrameCount.h"
#include "exchange/SegmentChoice.h"
#include "platform/movie/MovieFacts.h"

namespace velra {

namespace {

constexpr std::size_t kReelLength = 8;
constexpr std::size_t kMostEvents = 999;  // the number of an event has three digits
constexpr int kFirstHour = 1;             // where the record side begins, as is usual

double rateFor(const ContentObject& version, const ExportOptions& options) {
  if (options.rate) return *options.rate;
  if (version.frameRate >= 1) return version.frameRate;
  if (!version.movie.empty()) {
    const MovieFacts facts = movieFacts(version.movie);
    if (facts.rate > 0) return facts.rate;
  }
  throw ExchangeFailure(
      "Neither the Video nor the movie tells how many pictures a second has; --rate does.");
}

// What stands on the label of the tape: letters and digits of the movie's file name.
std::string reelOf(const std::string& movie) {
  std::string folder;
  std::string reel;
  for (const char character : strSplitPath(movie, folder)) {
    const bool small = character >= 'a' && character <= 'z';
    const bool fits =
        small || (character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9');
    if (!fits || reel.size() == kReelLength) continue;
    reel += small ? static_cast<char>(character - 'a' + 'A') : character;
  }
  return reel.empty() ? "AX" : reel;  // the usual name of what lies on no tape
}

std::string eventLine(std::size_t number, const std::string& reel, const ContentObject& segment,
                      const std::string& times) {
  char head[48];
  std::snprintf(head, sizeof head, "%03d  %-8s %-5s C        ", static_cast<int>(number),
                reel.c_str(), segment.kind == ObjectKind::Audio ? "A" : "V");
  return head + times + '\n';
}

class EdlWriter {
 public:
  EdlWriter(const ContentObject& version, double rate)
      : frames_(rate), reel_(reelOf(version.movie)), record_(frames_.firstOfHour(kFirstHour)) {
    text_ =
        std::string("FCM: ") + (frames_.dropsFrames() ? "DROP FRAME" : "NON-DROP FRAME") + "\n\n";
  }

  void add(const ContentObject& segment) {
    const std::int64_t in = frames_.at(segment.time->start);
    const std::int64_t out = frames_.at(segment.time->end);
    if (out <= in || events_ == kMostEvents) {
      ++(out <= in ? tooShort_ : tooMany_);
      return;
    }
    const std::int64_t end = record_ + out - in;
    text_ += eventLine(++events_, reel_, segment,
                       frames_.text(in) + ' ' + frames_.text(out) + ' ' + frames_.text(record_) +
                           ' ' + frames_.text(end));
    record_ = end;
    if (const std::string title = oneLine(segment.title); !title.empty()) {
      text_ += "* FROM CLIP NAME: " + title + '\n';
    }
    if (!segment.movie.empty()) {
      text_ += "* SOURCE FILE: " + oneLine(strFileName(segment.movie)) + '\n';
    }
  }

  Exported take(const std::string& title) const {
    Exported exported{"TITLE: " + title + '\n' + text_, {std::to_string(events_) + " events."}};
    const auto tell = [&](std::size_t count, const char* why) {
      if (count > 0) exported.notes.push_back(std::to_string(count) + why);
    };
    tell(tooShort_, " segments are shorter than a picture and left out.");
    tell(tooMany_, " segments are left out: a list has 999 events at most.");
    return exported;
  }

 private:
  FrameCount frames_;
  std::string reel_;
  std::int64_t record_;
  std::string text_;
  std::size_t events_ = 0;
  std::size_t tooShort_ = 0;
  std::size_t tooMany_ = 0;
};

Exported writeEdl(const Content& content, const ExportOptions& options) {
  const ContentObject* version = chosenVersion(content, options);
  if (!version) throw ExchangeFailure("The document has no Version to cut.");
  EdlWriter writer(*version, rateFor(*version, options));
  for (const ContentObject* segment : segmentsOfLevel(content, options)) writer.add(*segment);
  return writer.take(oneLine(content.document().title));
}

}  // namespace

const ExportFormat kEdlFormat{"edl",
                              "EDL CMX 3600",
                              "edl",
                              "segments of one level as a cut list, CMX 3600",
                              "class level of-version rate",
                              writeEdl};

}  // namespace velra
