// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/CutFinder.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "movies/FrameSource.h"
#include "movies/LibAv.h"
#include "movies/PictureConverter.h"
#include "movies/SceneFilter.h"
#include "platform/movie/MediaGraph.h"

namespace velra {

namespace {

// So many seconds behind a cut all pictures have to differ from the one before it, by a part of
// what the first of them does: after a flash they do not.
constexpr double kLongestFlash = 0.4;
constexpr double kStillDiffers = 0.4;

using SmallPicture = std::shared_ptr<const AVFrame>;

class CutFinder {
 public:
  CutFinder(const ShotSearch& search, double end) : search_(search), end_(end) {}

  void add(const MoviePicture& picture) {
    const SceneFilter::Scored scored = filter_.score(*picture.frame);
    if (!scored.small) return;
    if (starts_.empty()) starts_.push_back({search_.from, scored.small});
    const bool flashEnds = watch({picture.time, scored.small});
    if (!waiting_ && !flashEnds && before_ && scored.score >= search_.threshold) {
      waiting_ = Waiting{{picture.time, scored.small}, before_, scored.score};
    }
    before_ = scored.small;
  }

  std::vector<FoundShot> take() {
    // What is left behind the last cut may be too short as well.
    while (starts_.size() > 1 && end_ - starts_.back().time < search_.shortest) starts_.pop_back();
    std::vector<FoundShot> shots;
    for (std::size_t i = 0; i < starts_.size(); ++i) {
      const double end = i + 1 < starts_.size() ? starts_[i + 1].time : end_;
      auto picture = converter_.convert(*starts_[i].small);
      if (!picture) continue;
      shots.push_back(
          {static_cast<int>(shots.size()) + 1, starts_[i].time, end, std::move(picture)});
    }
    return shots;
  }

 private:
  struct Start {
    double time;
    SmallPicture small;
  };
  struct Waiting {
    Start cut;
    SmallPicture before;
    double score;
  };

  // Looks on behind a cut. True for the picture with which a flash is over: it is no cut either.
  bool watch(const Start& now) {
    if (!waiting_) return false;
    if (differenceOf(*waiting_->before, *now.small) < waiting_->score * kStillDiffers) {
      waiting_.reset();
      return true;
    }
    const double watched = now.time - waiting_->cut.time;
    if (watched < std::min(kLongestFlash, search_.shortest)) return false;
    const Start cut = std::exchange(waiting_, std::nullopt)->cut;
    if (cut.time - starts_.back().time >= search_.shortest) starts_.push_back(cut);
    return false;
  }

  const ShotSearch& search_;
  const double end_;
  SceneFilter filter_;
  PictureConverter converter_;
  std::vector<Start> starts_;
  SmallPicture before_;
  std::optional<Waiting> waiting_;
};

}  // namespace

FoundShots findCuts(const std::string& movie, const ShotSearch& search, const std::stop_token& stop,
                    const std::function<void(double)>& tell) {
  FoundShots found;
  FrameSource source;
  found.reason = source.open(movie, stop);
  if (!found.reason.empty()) return found;
  const double end = std::min(search.to, source.duration());
  CutFinder finder(search, end);
  auto picture = search.from < end ? source.at(search.from) : nullptr;
  for (; picture && picture->time < end && !stop.stop_requested();
       picture = source.after(*picture)) {
    finder.add(*picture);
    if (tell && end > search.from) tell((picture->time - search.from) / (end - search.from));
  }
  found.shots = finder.take();
  if (found.shots.empty()) found.reason = "The movie has no pictures there.";
  return found;
}

}  // namespace velra
