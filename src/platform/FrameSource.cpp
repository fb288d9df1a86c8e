#include "platform/FrameSource.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "platform/LibAv.h"
#include "platform/MovieInput.h"
#include "platform/PacketTail.h"
#include "platform/TrackDecoder.h"

namespace velra {

namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

// Closer than this many pictures ahead it is cheaper to decode on than to seek.
constexpr double kDecodeOnPictures = 40;

// A decoder that starts inside a group gives its first picture later than was asked; so far back
// the next attempt starts, and each further one by a factor.
constexpr double kFirstStepBack = 0.6;
constexpr double kStepBackFactor = 2.5;

// A length of a picture outside these bounds is a container's lie: ticks of a clock, or nothing.
constexpr double kShortestFrame = 1.0 / 121;
constexpr double kLongestFrame = 1.1;
constexpr int kMeasuredPictures = 24;

// A time that the file itself gives to this picture. Where several pictures share one packet of the
// container, the others get theirs by counting on, and after a seek that count starts wrong.
bool hasOwnTime(const AVFrame& frame) {
  return frame.pts != kNoTime && frame.pkt_pos >= 0;
}

}  // namespace

struct FrameSource::Current {
  AvFrame frame;
  double time;
};

FrameSource::FrameSource()
    : input_(std::make_unique<MovieInput>()), decoder_(std::make_unique<TrackDecoder>()) {}

FrameSource::~FrameSource() = default;

void FrameSource::cancel() {
  input_->cancel();
}

std::string FrameSource::open(const std::string& path) {
  if (std::string reason = input_->open(path); !reason.empty()) return reason;
  if (!input_->choose(MovieTrack::Pictures)) return "It has no pictures that can be decoded.";
  if (std::string reason = decoder_->open(*input_->stream()); !reason.empty()) return reason;
  if (!takeFirst()) return "No picture of it can be decoded.";
  setFrameTime();
  input_->settle();
  return {};
}

bool FrameSource::takeFirst() {
  AvFrame first = decoder_->next(*input_);
  if (!first) return false;
  firstTicks_ = first->best_effort_timestamp;
  ownTimes_ = hasOwnTime(*first);
  size_ = {first->width, first->height};
  current_ = std::make_unique<Current>(Current{std::move(first), 0});
  return true;
}

void FrameSource::setFrameTime() {
  const AVStream* stream = input_->stream();
  AVRational rate = stream->avg_frame_rate;
  if (rate.num <= 0 || rate.den <= 0) rate = stream->r_frame_rate;
  frameTime_ = rate.num > 0 && rate.den > 0 ? static_cast<double>(rate.den) / rate.num : 0;
  if (frameTime_ < kShortestFrame || frameTime_ > kLongestFrame) {
    frameTime_ = 0.04;  // for pictures without a time of their own
    frameTime_ = medianDistance();
  }
}

double FrameSource::medianDistance() {
  std::vector<double> distances;
  bool ended = false;
  while (!ended && distances.size() < kMeasuredPictures) {
    const Found picture = step(ended);
    if (picture && !ended) distances.push_back(picture->end - picture->time);
  }
  if (distances.empty()) return frameTime_;
  const auto middle = distances.begin() + static_cast<std::ptrdiff_t>(distances.size() / 2);
  std::nth_element(distances.begin(), middle, distances.end());
  return *middle;
}

double FrameSource::secondsOf(std::int64_t ticks) const {
  const AVRational base = input_->stream()->time_base;
  return static_cast<double>(ticks) * base.num / base.den;
}

double FrameSource::origin() const {
  return firstTicks_ == kNoTime ? 0 : secondsOf(firstTicks_);
}

// Unknown only for the first picture after a seek.
double FrameSource::timeOf(const AVFrame& frame) const {
  const std::int64_t ticks = frame.best_effort_timestamp;
  const bool known = ticks != kNoTime && firstTicks_ != kNoTime;
  const double time = known ? secondsOf(ticks - firstTicks_) : kUnknown;
  if (!current_) return time;
  return time > current_->time ? time : current_->time + frameTime_;
}

double FrameSource::tolerance() const {
  return std::min(0.001, frameTime_ / 4);
}

FrameSource::Found FrameSource::at(double seconds) {
  const double target = std::isnan(seconds) ? 0 : std::max(0.0, seconds) + tolerance();
  if (Found known = cache_.find(target)) return known;
  const double ahead = current_ ? target - current_->time : -1;
  if (ahead >= 0 && ahead < kDecodeOnPictures * frameTime_) return decodeOn(target);
  const double claimed = input_->claimedLength();
  const bool behindEnd = claimed <= 0 || target > claimed - kLongestFrame;
  return seekTo(target, behindEnd ? std::min(target, duration()) : target);
}

FrameSource::Found FrameSource::after(const MoviePicture& picture) {
  return std::isinf(picture.end) ? nullptr : at(picture.end);
}

FrameSource::Found FrameSource::complete(double end) {
  auto picture = std::make_shared<MoviePicture>();
  picture->time = current_->time;
  picture->end = end;
  picture->frame = std::shared_ptr<const AVFrame>(std::move(current_->frame));
  current_.reset();
  cache_.add(picture);
  return picture;
}

// Brings one more picture out of the decoder and gives the one before it, whose end is known by
// that.
FrameSource::Found FrameSource::step(bool& ended) {
  AvFrame frame = decoder_->next(*input_);
  ended = !frame;
  if (ended) return current_ && !input_->cancelled() ? complete(kInfinite) : nullptr;
  const double time = timeOf(*frame);
  Found before = current_ ? complete(time) : nullptr;
  current_ = std::make_unique<Current>(Current{std::move(frame), time});
  return before;
}

FrameSource::Found FrameSource::decodeOn(double target) {
  bool ended = false;
  Found picture;
  while (!ended) {
    if (Found next = step(ended)) picture = std::move(next);
    if (picture && target < picture->end) return picture;
  }
  return input_->cancelled() ? nullptr : picture;
}

FrameSource::Found FrameSource::seekTo(double target, double sought) {
  double back = 0;
  while (!input_->cancelled()) {
    const double from = sought - back;
    if (from <= 0) return rewind() ? decodeOn(target) : nullptr;
    if (startBehind(from) && current_->time <= target) return decodeOn(target);
    back = back == 0 ? kFirstStepBack : back * kStepBackFactor;
  }
  return nullptr;
}

// Starts decoding at or before a time as far as the container knows; false when nothing with a sure
// time comes. Pictures before the first whole one lean on others that were not decoded.
bool FrameSource::startBehind(double seconds) {
  current_.reset();
  ++seeks_;
  const AVRational base = input_->stream()->time_base;
  const double ticks = std::floor(seconds * base.den / base.num);
  const std::int64_t first = firstTicks_ == kNoTime ? 0 : firstTicks_;
  if (!input_->seek(first + static_cast<std::int64_t>(ticks))) return false;
  decoder_->flush();
  AvFrame frame = decoder_->next(*input_);
  bool whole = false;
  while (frame) {
    whole = whole || frame->key_frame != 0 || frame->pict_type == AV_PICTURE_TYPE_I;
    const double time = timeOf(*frame);
    if (whole && !std::isnan(time) && (!ownTimes_ || hasOwnTime(*frame))) {
      current_ = std::make_unique<Current>(Current{std::move(frame), time});
      return true;
    }
    frame = decoder_->next(*input_);
  }
  return false;
}

bool FrameSource::rewind() {
  for (int way = 0; way < MovieInput::kWaysToStart; ++way) {
    current_.reset();
    ++seeks_;
    if (!input_->toStart(way, firstTicks_)) continue;
    decoder_->flush();
    AvFrame frame = decoder_->next(*input_);
    if (!frame || frame->best_effort_timestamp != firstTicks_) continue;
    current_ = std::make_unique<Current>(Current{std::move(frame), 0});
    return true;
  }
  return false;
}

double FrameSource::duration() {
  if (duration_ < 0) duration_ = measure();
  return duration_;
}

// Container lengths are wrong by up to three pictures. The packets know it without decoding, unless
// one at the end has no time of its own.
double FrameSource::measure() {
  const std::int64_t first = firstTicks_ == kNoTime ? 0 : firstTicks_;
  const PacketTail tail = findTail(*input_, first);
  current_.reset();
  const double last = tail.any ? secondsOf(tail.last - first) : 0;
  if (tail.any && !tail.missing) return last + frameTime_;
  const Found picture = seekTo(kInfinite, std::max(input_->claimedLength() - 1, last));
  return picture ? picture->time + frameTime_ : 0;
}

}  // namespace velra
