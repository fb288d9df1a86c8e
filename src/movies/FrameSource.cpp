// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/FrameSource.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>
#include <utility>

#include "movies/FrameTime.h"
#include "movies/MovieInput.h"
#include "movies/MovieMemory.h"
#include "movies/PacketTail.h"
#include "values/TimeCode.h"

namespace velra {

namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();

// Closer than this many pictures ahead it is cheaper to decode on than to seek, where nothing is
// known of the keys.
constexpr double kDecodeOnPictures = 40;

// Nor is it dearer for so many when no key lies on the way.
constexpr double kMostOnTheWay = 300;

// To begin at a key takes as long as so many pictures.
constexpr double kSeekPictures = 3;

// So many pictures before the one that is sought are decoded all, if the cache has room, since
// people step back; who does so by no more than two pictures does it again.
constexpr double kFewestWhole = 2;
constexpr double kWholeBefore = 2;
constexpr double kStepBack = 2;
constexpr double kWholeBeforeSteps = 30;

// A decoder that starts inside a group gives its first picture later than was asked; so far back
// the next attempt starts, and each further one by a factor.
constexpr double kFirstStepBack = 0.6;
constexpr double kStepBackFactor = 2.5;

// A claimed length may be wrong by so many seconds.
constexpr double kClaimSlack = 1.1;

// Two times of one picture that were counted on different ways differ by less.
constexpr double kSameTime = 1e-6;

// For pictures without a time of their own in a file that tells nothing.
constexpr double kUsualFrame = 0.04;

}  // namespace

FrameSource::FrameSource(std::chrono::milliseconds firstLook) : firstLook_(firstLook) {}

FrameSource::~FrameSource() = default;

void FrameSource::cancel() {
  reader_.input().cancel();
}

std::string FrameSource::open(const std::string& path, const std::stop_token& stop) {
  const std::stop_callback stopping(stop, [this] { cancel(); });
  const FileStamp stamp = fileStamp(path);
  const auto known = MovieMemory::ofProcess().find(stamp);
  std::string reason = reader_.open(path, known ? &known->first : nullptr);
  if (known) {
    index_ = known->index;
  } else {
    if (reason.empty()) reason = indexMovie(reader_, firstLook_, index_);
    const bool whole = reason.empty() && !reader_.input().cancelled();
    if (whole) MovieMemory::ofProcess().add(stamp, {reader_.first(), index_});
  }
  if (!reason.empty()) return reason;
  setTimes();
  reader_.input().settle();
  return {};
}

bool FrameSource::hasPictures() const {
  return reader_.input().has(MovieTrack::Pictures);
}

void FrameSource::setTimes() {
  setLine();
  const bool stampedPictures = reader_.input().stamps() == MovieStamps::OfPictures;
  mayLeaveOut_ = stampedPictures && !index_.lost;
  const double usual = stampedPictures ? index_.usualDistance() * reader_.tick() : 0;
  frameTime_ = chooseFrameTime(reader_.statedFrameTime(), usual, reader_.tick(), index_.pictures);
  reader_.setClock(frameTime_ > 0 ? frameTime_ : kUsualFrame, index_.leap, line_);
  group_ = index_.longestGroup();
  if (frameTime_ <= 0) frameTime_ = medianDistance(reader_).value_or(kUsualFrame);
}

void FrameSource::setLine() {
  line_ = index_.line.startingAt(index_.first);
  if (line_.leaps()) return;
  const double stamp = reader_.firstStamp();
  const double offset = std::isnan(stamp) ? line_.offsetAt(0) : stamp;
  line_ = StampLine(std::isnan(offset) ? 0 : offset);
}

FrameSource::Found FrameSource::at(double seconds) {
  const double time = std::isnan(seconds) ? 0 : std::max(0.0, inWholeMilliseconds(seconds));
  return find(time + std::min(kNearFrame, frameTime_ / 4));
}

FrameSource::Found FrameSource::after(const MoviePicture& picture) {
  return std::isinf(picture.end) ? nullptr : find(picture.end + kSameTime);
}

// The picture whose span holds a time.
FrameSource::Found FrameSource::find(double target) {
  const double back = std::exchange(lastTarget_, target) - target;
  if (Found known = cache_.find(target)) return known;
  const double ahead = target - reader_.time().value_or(kInfinite);
  const bool stepsBack = back > 0 && back < kStepBack * frameTime_;
  const double most = stepsBack ? kWholeBeforeSteps : kWholeBefore;
  whole_ = std::clamp(0.9 * cache_.room(), kFewestWhole, most) * frameTime_;
  if (ahead >= 0 && ahead < worthDecoding(target)) return decodeOn(target);
  const double lead = stepsBack ? whole_ : 0;
  return index_.byKeys ? seekByKeys(target, lead) : seekTo(target, lead);
}

// Seconds ahead. Of files with bare stamps the library knows the keys alone at which it has been.
double FrameSource::worthDecoding(double target) const {
  const bool noKeyBetween = reader_.leadsTo(target) && !reader_.input().hasBareStamps();
  if (noKeyBetween) return kMostOnTheWay * frameTime_;
  const double most = kDecodeOnPictures * frameTime_;
  return group_ > 0 ? std::min(most, group_ + kSeekPictures * frameTime_) : most;
}

FrameSource::Found FrameSource::step(bool& ended) {
  Found picture = reader_.step(ended);
  if (picture && picture->time >= wholeFrom_) cache_.add(picture);
  return picture;
}

FrameSource::Found FrameSource::decodeOn(double target) {
  leaveOut(target, reader_.time().value_or(kInfinite));
  bool ended = false;
  Found picture;
  while (!ended && !(picture && target < picture->end)) {
    if (Found next = step(ended)) picture = std::move(next);
  }
  const bool doubtful = picture && picture->time < wholeFrom_;
  leaveOutNone();
  if (reader_.input().cancelled()) return nullptr;
  if (!doubtful) return picture;
  mayLeaveOut_ = false;  // a picture is shown for long, or the movie ends before its length
  return seekTo(target, 0);
}

// The picture that is sought, and those that it may be stepped back to, come whole.
void FrameSource::leaveOut(double target, double start) {
  const double end = duration_ >= 0 ? std::min(target, duration_) : target;
  const double from = end - whole_;
  if (!mayLeaveOut_ || !(start < from)) return;
  wholeFrom_ = from;
  reader_.leaveOutBefore(from);
}

void FrameSource::leaveOutNone() {
  wholeFrom_ = -kInfinite;
  reader_.leaveOutBefore(-kInfinite);
}

FrameSource::Found FrameSource::seekTo(double target, double lead) {
  const double claimed = reader_.input().claimedLength();
  const bool behindEnd = claimed <= 0 || target > claimed - kClaimSlack || index_.known();
  const double sought = behindEnd ? std::min(target, duration()) : target;
  double back = lead;
  while (!reader_.input().cancelled()) {
    const double from = sought - back;
    if (from <= 0) break;
    leaveOut(target, -kInfinite);
    if (reader_.startBehind(from) && *reader_.time() <= target) {
      return decodeOn(target);
    }
    back = back == 0 ? kFirstStepBack : back * kStepBackFactor;
  }
  leaveOutNone();
  return reader_.rewind() ? decodeOn(target) : nullptr;
}

// A key that does not come, as in a damaged file, leaves those before it.
FrameSource::Found FrameSource::seekByKeys(double target, double lead) {
  const KeyPlace* key = index_.keyBefore(target - lead + index_.first);
  while (key != nullptr && !reader_.input().cancelled()) {
    if (reader_.isFirst(*key)) break;
    if (reader_.startAt(*key, index_.first) && *reader_.time() <= target) return decodeOn(target);
    key = key == index_.keys.data() ? nullptr : std::prev(key);
  }
  return reader_.rewind() ? decodeOn(target) : nullptr;
}

double FrameSource::duration() {
  if (duration_ < 0) duration_ = measure();
  return duration_;
}

// Container lengths are wrong by up to three pictures. The packets know it without decoding, unless
// one at the end has no time of its own, or one before the first picture's: stamps that fall.
double FrameSource::measure() {
  if (index_.known()) return index_.length(frameTime_);
  const double first = line_.offsetAt(0);
  const PacketTail tail =
      findTail(reader_.input(), static_cast<std::int64_t>(std::llround(first / reader_.tick())));
  reader_.forget();
  const double last = tail.any ? static_cast<double>(tail.last) * reader_.tick() - first : 0;
  if (tail.any && !tail.missing && last >= 0) return last + frameTime_;
  duration_ = std::max(reader_.input().claimedLength() - 1, last);  // for the search
  const Found picture = seekTo(kInfinite, 0);
  return picture ? std::max(picture->time, 0.0) + frameTime_ : 0;
}

}  // namespace velra
