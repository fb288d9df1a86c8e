// SPDX-License-Identifier: GPL-3.0-or-later

// CMX 3600 edit decision lists.
#include <algorithm>

#include "base/Text.h"
#include "exchange/ContentText.h"
#include "exchange/ExchangeFailure.h"
#include "exchange/FrameCount.h"
#include "exchange/imports/ImportFormats.h"
#include "exchange/imports/ImportText.h"
#include "values/TimeCode.h"

namespace velra {

namespace {

constexpr std::string_view kClipName = "* FROM CLIP NAME:";

struct CutEvent {
  int number = 0;
  std::string reel;
  bool sound = false;  // no pictures
  std::int64_t in = 0;
  std::int64_t out = 0;
  bool usable = false;
  std::string title;
};

class CutListReader {
 public:
  CutListReader(const ImportOptions& options, double rate) : options_(options), frames_(rate) {
    if (options.startLabel.empty()) return;
    const bool drops = options.startLabel.find(';') != std::string::npos;
    const auto start = frames_.labelled(options.startLabel, drops);
    if (!start) {
      throw ExchangeFailure("--start takes a label as 01:00:00:00, not \"" + options.startLabel +
                            "\".");
    }
    start_ = *start;
  }

  void line(const std::string& text) {
    if (text.starts_with("FCM:")) drops_ = text.find("NON") == std::string::npos;
    if (text.starts_with(kClipName) && !events_.empty()) {
      events_.back().title = trimmed(text.substr(kClipName.size()));
    }
    std::vector<std::string> words = split(oneLine(text), ' ');
    const auto number = toNumber(words.front());
    if (words.size() < 8 || !number || *number < 0 || *number > 999'999) return;
    CutEvent event{static_cast<int>(*number),
                   words[1],
                   words[2].starts_with('A') && words[2].find('V') == std::string::npos,
                   0,
                   0,
                   false,
                   {}};
    const std::size_t side = words.size() - (options_.record ? 2 : 4);
    const auto in = picture(words[side]);
    const auto out = picture(words[side + 1]);
    event.usable = in && out;
    event.in = in.value_or(0) - start_;
    event.out = out.value_or(0) - start_;
    // The first of two lines of a transition says what goes, for no time at all.
    const bool replaced = !events_.empty() && events_.back().number == event.number &&
                          events_.back().in == events_.back().out;
    if (replaced) events_.pop_back();
    events_.push_back(std::move(event));
  }

  Proposal take() const {
    if (events_.empty()) throw ExchangeFailure("The list has no events.");
    // Lists that name the tracks apart have most events twice.
    const bool pictures = std::any_of(events_.begin(), events_.end(),
                                      [](const CutEvent& event) { return !event.sound; });
    Proposal proposal;
    for (const CutEvent& event : events_) {
      if (pictures && event.sound) continue;
      if (!event.usable || event.in < 0) {
        proposal.refused.push_back({event.number, Message::RowWithoutTimes, {}});
        continue;
      }
      // Clips need no name; then the reel tells them apart.
      const std::string title =
          event.title.empty() ? event.reel + ' ' + std::to_string(event.number) : event.title;
      proposal.segments.push_back({event.number,
                                   inWholeMilliseconds(frames_.seconds(event.in)),
                                   inWholeMilliseconds(frames_.seconds(event.out)),
                                   title,
                                   1,
                                   {},
                                   {}});
    }
    return proposal;
  }

 private:
  std::optional<std::int64_t> picture(const std::string& label) const {
    return frames_.labelled(label, drops_ || label.find(';') != std::string::npos);
  }

  const ImportOptions& options_;
  FrameCount frames_;
  std::int64_t start_ = 0;
  bool drops_ = false;
  std::vector<CutEvent> events_;
};

Proposal readCutList(const std::string& text, const ImportOptions& options, double rate) {
  if (rate <= 0) {
    throw ExchangeFailure(
        "Neither the Video nor the movie tells how many pictures a second has; --rate does.");
  }
  CutListReader reader(options, rate);
  for (const std::string& line : linesOf(text)) reader.line(line);
  return reader.take();
}

}  // namespace

const ImportFormat kEdlImport{
    "edl", "EDL CMX 3600", "edl", "events of a cut list, CMX 3600", "rate record start",
    false, readCutList};

}  // namespace velra
