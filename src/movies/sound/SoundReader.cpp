// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/sound/SoundReader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "movies/LibAv.h"
#include "movies/MovieInput.h"
#include "movies/TrackDecoder.h"

namespace velra {

namespace {

// Decoders need blocks before the first one that comes out whole.
constexpr std::array<double, 3> kStepsBack{0.2, 1.0, 4.0};

constexpr std::int64_t kMostSilence = SoundReader::kRate / 2;

}  // namespace

// Turns decoded blocks into samples of our kind. Holds the block that comes next.
struct SoundReader::Converter {
  AvFrame block;
  AvResampler resampler;
  AVSampleFormat format = AV_SAMPLE_FMT_NONE;
  int rate = 0;
  int channels = 0;

  bool prepare() {
    const auto kind = static_cast<AVSampleFormat>(block->format);
    const int count = block->ch_layout.nb_channels;
    if (resampler && kind == format && block->sample_rate == rate && count == channels) return true;
    format = kind;
    rate = block->sample_rate;
    channels = count;
    AVChannelLayout stereo = AV_CHANNEL_LAYOUT_STEREO;
    AVChannelLayout layout{};
    av_channel_layout_default(&layout, count);
    SwrContext* made = nullptr;
    swr_alloc_set_opts2(&made, &stereo, AV_SAMPLE_FMT_S16, kRate, &layout, kind, rate, 0, nullptr);
    av_channel_layout_uninit(&layout);
    resampler.reset(made);
    const bool good = resampler && swr_init(resampler.get()) >= 0;
    if (!good) resampler.reset();
    return good;
  }

  // Samples that the resampler still holds from earlier blocks.
  std::int64_t delay() const { return resampler ? swr_get_delay(resampler.get(), kRate) : 0; }

  void convert(std::vector<std::int16_t>& samples) {
    samples.clear();
    if (!prepare()) return;
    const int room = swr_get_out_samples(resampler.get(), block->nb_samples);
    if (room <= 0) return;
    samples.resize(static_cast<std::size_t>(room) * kChannels);
    auto* target = reinterpret_cast<std::uint8_t*>(samples.data());
    const std::uint8_t** source = const_cast<const std::uint8_t**>(block->extended_data);
    const int made = swr_convert(resampler.get(), &target, room, source, block->nb_samples);
    samples.resize(static_cast<std::size_t>(std::max(made, 0)) * kChannels);
  }
};

SoundReader::SoundReader()
    : input_(std::make_unique<MovieInput>()),
      decoder_(std::make_unique<TrackDecoder>()),
      converter_(std::make_unique<Converter>()) {}

SoundReader::~SoundReader() = default;

void SoundReader::cancel() {
  input_->cancel();
}

std::string SoundReader::open(const std::string& path, const std::optional<StampLine>& line) {
  if (std::string reason = input_->open(path); !reason.empty()) return reason;
  if (!input_->choose(MovieTrack::Sound)) return "It has no sound that can be decoded.";
  if (std::string reason = decoder_->open(*input_->stream()); !reason.empty()) return reason;
  converter_->block = decoder_->next(*input_);
  if (!converter_->block) return "No sound of it can be decoded.";
  input_->settle();
  firstTicks_ = converter_->block->best_effort_timestamp;
  if (firstTicks_ == kNoTime) firstTicks_ = 0;
  const double first = static_cast<double>(firstTicks_) * av_q2d(input_->stream()->time_base);
  line_ = line.value_or(StampLine(first));
  return {};
}

void SoundReader::seek(double seconds) {
  start_ = std::isfinite(seconds) ? std::max(0.0, seconds) : 0;
  given_ = 0;
  silence_ = 0;
  exact_ = true;
  if (!takeFirst(start_)) converter_->block.reset();
}

// Decodes the block that holds a time, or the first one there is.
bool SoundReader::takeFirst(double seconds) {
  for (const double back : kStepsBack) {
    if (seconds - back <= 0) break;
    if (startBehind(seconds - back) && timeOfBlock() <= seconds) return true;
  }
  return rewind();
}

bool SoundReader::startBehind(double seconds) {
  const double stamp = seconds + line_.offsetAt(seconds);
  const double ticks = stamp / av_q2d(input_->stream()->time_base);
  return input_->seek(static_cast<std::int64_t>(ticks)) && decodesFirst();
}

// After a seek: the block that comes first.
bool SoundReader::decodesFirst() {
  decoder_->flush();
  converter_->resampler.reset();
  converter_->block = decoder_->next(*input_);
  return converter_->block != nullptr;
}

bool SoundReader::rewind() {
  return input_->toStart(firstTicks_, [this] { return decodesFirst(); });
}

double SoundReader::timeOfBlock() const {
  const std::int64_t ticks = converter_->block->best_effort_timestamp;
  if (ticks == kNoTime) return start_ + static_cast<double>(given_) / kRate;
  return line_.timeOf(static_cast<double>(ticks) * av_q2d(input_->stream()->time_base));
}

// Samples from the end of what was given to a time; negative when the time lies before it.
std::int64_t SoundReader::distance(double seconds) const {
  return std::llround((seconds - start_) * kRate) - given_;
}

bool SoundReader::read(std::vector<std::int16_t>& samples) {
  samples.clear();
  while (samples.empty()) {
    if (silence_ > 0) {
      const std::int64_t count = std::min(silence_, kMostSilence);
      samples.assign(static_cast<std::size_t>(count) * kChannels, 0);
      silence_ -= count;
    } else {
      if (!converter_->block) return false;
      place(samples);
    }
  }
  given_ += static_cast<std::int64_t>(samples.size()) / kChannels;
  return true;
}

// Converts the block and takes the next one, unless silence must come before it: then nothing is
// given yet.
void SoundReader::place(std::vector<std::int16_t>& samples) {
  const double time = timeOfBlock() - static_cast<double>(converter_->delay()) / kRate;
  std::int64_t gap = distance(time);
  if (!exact_ && std::abs(gap) <= kSlack) gap = 0;
  if (gap > 0) {
    silence_ = gap;
    return;
  }
  converter_->convert(samples);
  const std::int64_t early = std::min(-gap * kChannels, static_cast<std::int64_t>(samples.size()));
  samples.erase(samples.begin(), samples.begin() + early);
  exact_ = exact_ && samples.empty();
  converter_->block = decoder_->next(*input_);
}

}  // namespace velra
