// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/PictureReader.h"

#include <cmath>
#include <limits>
#include <utility>

#include "movies/LibAv.h"
#include "movies/MovieInput.h"
#include "movies/PictureIndex.h"
#include "movies/TrackDecoder.h"

namespace velra {

namespace {

// A length outside these bounds is a container's lie: ticks of a clock, or nothing.
constexpr double kShortestFrame = 1.0 / 121;
constexpr double kLongestFrame = 1.1;

// Pixels that are longer than this are a damaged header's.
constexpr double kLongestPixel = 8;

constexpr char kNoPicture[] = "It holds no picture that can be decoded.";

std::int64_t ticksOf(const AVFrame& frame, const MovieInput& input) {
  return input.hasBareStamps() ? frame.pts : frame.best_effort_timestamp;
}

// `shape` is the width of a pixel by its height; 0 when it is not told.
PixelSize inSquarePixels(PixelSize size, double shape) {
  if (shape > 1 && shape <= kLongestPixel) {
    size.width = static_cast<int>(std::lround(size.width * shape));
  } else if (shape < 1 && shape >= 1 / kLongestPixel) {
    size.height = static_cast<int>(std::lround(size.height / shape));
  }
  return size;
}

bool isKey(const AVFrame& frame) {
  return frame.key_frame != 0 || frame.pict_type == AV_PICTURE_TYPE_I;
}

}  // namespace

struct PictureReader::Current {
  AvFrame frame;
  double time;
};

PictureReader::PictureReader()
    : input_(std::make_unique<MovieInput>()), decoder_(std::make_unique<TrackDecoder>()) {}

PictureReader::~PictureReader() = default;

std::string PictureReader::open(const std::string& path, const FirstPicture* known) {
  if (std::string reason = input_->open(path); !reason.empty()) return reason;
  if (!input_->choose(MovieTrack::Pictures)) return kNoPicture;
  if (std::string reason = decoder_->open(*input_->stream()); !reason.empty()) return reason;
  if (known != nullptr) {
    first_ = *known;
    return {};
  }
  if (takeFirst()) return {};
  return input_->statesTooLarge() ? "Its pictures are larger than 8192 x 4320 pixels." : kNoPicture;
}

bool PictureReader::takeFirst() {
  AvFrame first = decoder_->first(*input_);
  if (!first) return false;
  const AVRational shape = av_guess_sample_aspect_ratio(nullptr, input_->stream(), first.get());
  first_.ticks = ticksOf(*first, *input_);
  first_.stamp = stampOf(*first);
  first_.position = first->pkt_pos;
  first_.bytes = first->pkt_size;
  first_.ownStamps = hasOwnStamp(*first);
  first_.statedFrameTime = tellFrameTime();
  first_.size = {first->width, first->height};
  first_.shownSize = inSquarePixels(first_.size, av_q2d(shape));
  clock_.restart(0, first_.stamp);
  current_ = std::make_unique<Current>(Current{std::move(first), 0});
  return true;
}

double PictureReader::tellFrameTime() const {
  AVRational rate = input_->stream()->avg_frame_rate;
  // Without a container that average is guessed, and wrong where fields repeat.
  if (input_->hasBareStamps() && decoder_->rate().num > 0) rate = decoder_->rate();
  if (rate.num <= 0 || rate.den <= 0) rate = input_->stream()->r_frame_rate;
  if (rate.num <= 0 || rate.den <= 0) return 0;
  const double time = static_cast<double>(rate.den) / rate.num;
  return time >= kShortestFrame && time <= kLongestFrame ? time : 0;
}

double PictureReader::tick() const {
  return av_q2d(input_->stream()->time_base);
}

bool PictureReader::isFirst(const KeyPlace& key) const {
  return key.size == first_.bytes && (key.behind > 0 || key.position == first_.position);
}

double PictureReader::stampOf(const AVFrame& frame) const {
  const std::int64_t ticks = ticksOf(frame, *input_);
  return ticks == kNoTime ? PictureClock::kUnknown : static_cast<double>(ticks) * tick();
}

// Where pictures share a packet the library counts on times, and wrong after a seek.
bool PictureReader::hasOwnStamp(const AVFrame& frame) const {
  return frame.pts != kNoTime && (input_->hasBareStamps() || frame.pkt_pos >= 0);
}

double PictureReader::take(const AVFrame& frame) {
  return clock_.take(stampOf(frame), PictureClock::kFields + frame.repeat_pict);
}

void PictureReader::setClock(double frameTime, double leap, StampLine line) {
  clock_ = PictureClock(frameTime, leap);
  line_ = std::move(line);
}

std::optional<double> PictureReader::time() const {
  return current_ ? std::optional(current_->time) : std::nullopt;
}

void PictureReader::forget() {
  current_.reset();
}

bool PictureReader::rewind() {
  current_.reset();
  return input_->toStart(first_.ticks == kNoTime ? 0 : first_.ticks,
                         [this] { return decodesFirst(); });
}

bool PictureReader::decodesFirst() {
  ++starts_;
  decoder_->flush();
  AvFrame frame = decoder_->next(*input_);
  if (!frame || frame->pkt_size != first_.bytes) return false;
  if (ticksOf(*frame, *input_) != first_.ticks) return false;
  clock_.restart(0, first_.stamp);
  take(*frame);
  current_ = std::make_unique<Current>(Current{std::move(frame), 0});
  return true;
}

// Pictures before the first whole one lean on others that were not decoded.
bool PictureReader::startBehind(double seconds) {
  current_.reset();
  ++starts_;
  if (!input_->seek(ticksAt(seconds))) return false;
  decoder_->flush();
  bool whole = false;
  while (AvFrame frame = decoder_->next(*input_)) {
    whole = whole || isKey(*frame) || input_->hidesKey();
    const double stamp = stampOf(*frame);
    if (!whole || std::isnan(stamp) || (first_.ownStamps && !hasOwnStamp(*frame))) continue;
    const double start = line_.timeOf(stamp);
    clock_.restart(start, stamp - start);
    const double time = take(*frame);
    current_ = std::make_unique<Current>(Current{std::move(frame), time});
    return true;
  }
  return false;
}

bool PictureReader::startAt(const KeyPlace& key, double shift) {
  current_.reset();
  ++starts_;
  if (!input_->seekByte(key.position) || !input_->skip(key.behind)) return false;
  decoder_->flush();
  AvFrame frame = decoder_->next(*input_);
  while (frame && !isKey(*frame)) frame = decoder_->next(*input_);
  // What a stretch of bytes holds of the picture before comes with the first that begins in it.
  const int excess = frame ? frame->pkt_size - key.size : -1;
  if (excess < 0 || (excess > 0 && key.behind > 0)) return false;
  const double start = key.time - shift;
  clock_.restart(start, line_.offsetAt(start));
  const double time = take(*frame);
  current_ = std::make_unique<Current>(Current{std::move(frame), time});
  return true;
}

std::int64_t PictureReader::ticksAt(double seconds) const {
  return std::llround(std::floor((seconds + line_.offsetAt(seconds)) / tick()));
}

void PictureReader::leaveOutBefore(double seconds) {
  decoder_->leaveOutBefore(std::isfinite(seconds) ? ticksAt(seconds) : kNoTime);
}

bool PictureReader::leadsTo(double seconds) const {
  if (!current_ || !std::isfinite(seconds)) return false;
  return input_->keyBefore(ticksAt(seconds)).value_or(INT64_MAX) <= ticksAt(current_->time);
}

PictureReader::Found PictureReader::complete(double end) {
  auto picture = std::make_shared<MoviePicture>();
  picture->time = current_->time;
  picture->end = end;
  picture->frame = std::shared_ptr<const AVFrame>(std::move(current_->frame));
  current_.reset();
  return picture;
}

PictureReader::Found PictureReader::step(bool& ended) {
  AvFrame frame = decoder_->next(*input_);
  ended = !frame;
  if (ended) {
    const bool last = current_ && !input_->cancelled();
    return last ? complete(std::numeric_limits<double>::infinity()) : nullptr;
  }
  const double time = take(*frame);
  Found before = current_ ? complete(time) : nullptr;
  current_ = std::make_unique<Current>(Current{std::move(frame), time});
  return before;
}

}  // namespace velra
