// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/TrackDecoder.h"

#include <algorithm>

#include "movies/MovieFile.h"
#include "movies/MovieInput.h"

namespace velra {

namespace {

// Damaged pictures in a row after which a decoder is given up that has lost its way.
constexpr int kBadPictures = 10'000;

// How much is tried before a file is said to hold no picture.
constexpr std::chrono::milliseconds kFirstLimit{80};
constexpr int kVainPackets = 100;
constexpr int kVainKeys = 3;

constexpr int kFewestThreads = 2;
constexpr int kMostThreads = 8;

// Where each one works at a picture of its own, which takes its memory and is waited for after a
// seek, there is one more than cores, since each waits at times for the rows of another. Where all
// work at one picture, each at as many rows, one more would begin when the others have ended.
int threadsOf(const AVCodec& decoder) {
  const bool ownPictures = (decoder.capabilities & AV_CODEC_CAP_FRAME_THREADS) != 0;
  return std::clamp(av_cpu_count() + (ownPictures ? 1 : 0), kFewestThreads, kMostThreads);
}

}  // namespace

std::string TrackDecoder::open(const AVStream& stream) {
  const AVCodec* decoder = avcodec_find_decoder(stream.codecpar->codec_id);
  if (decoder == nullptr) return "No decoder is known for it.";
  codec_.reset(avcodec_alloc_context3(decoder));
  packet_.reset(av_packet_alloc());
  avcodec_parameters_to_context(codec_.get(), stream.codecpar);
  codec_->pkt_timebase = stream.time_base;
  codec_->thread_count = threadsOf(*decoder);
  codec_->max_pixels = MovieFile::kMostPixels;
  draining_ = false;
  if (avcodec_open2(codec_.get(), decoder, nullptr) < 0) return "The decoder refuses it.";
  return {};
}

AVRational TrackDecoder::rate() const {
  const bool stated =
      codec_->codec_id == AV_CODEC_ID_MPEG1VIDEO || codec_->codec_id == AV_CODEC_ID_MPEG2VIDEO;
  return stated ? codec_->framerate : AVRational{0, 1};
}

void TrackDecoder::flush() {
  avcodec_flush_buffers(codec_.get());
  draining_ = false;
}

AvFrame TrackDecoder::first(MovieInput& input) {
  vain_ = Vain{Clock::now() + kFirstLimit, 0, 0};
  AvFrame frame = next(input);
  vain_.reset();
  return frame;
}

// Where nothing has come out of so many packets and keys, nothing will.
bool TrackDecoder::inVain() const {
  return vain_ && vain_->packets >= kVainPackets && vain_->keys >= kVainKeys &&
         Clock::now() > vain_->until;
}

AvFrame TrackDecoder::next(MovieInput& input) {
  AvFrame frame(av_frame_alloc());
  for (int bad = 0; bad < kBadPictures;) {
    const int error = avcodec_receive_frame(codec_.get(), frame.get());
    if (error == 0) return frame;
    if (error == AVERROR_EOF || input.cancelled() || inVain()) return nullptr;
    if (error == AVERROR(EAGAIN)) {
      if (draining_) return nullptr;  // it was told the end and wants more: there is no more
      feed(input);
    } else {
      ++bad;  // a damaged picture: the next one may be good
    }
  }
  return nullptr;
}

void TrackDecoder::feed(MovieInput& input) {
  while (!draining_) {
    if (!input.read(*packet_)) {
      draining_ = true;
      avcodec_send_packet(codec_.get(), nullptr);
      return;
    }
    // An empty packet repeats the picture before it; the decoder would take it for the end.
    if (packet_->size == 0) continue;
    if (vain_) {
      ++vain_->packets;
      if ((packet_->flags & AV_PKT_FLAG_KEY) != 0) ++vain_->keys;
    }
    const bool mayGo = packet_->pts != kNoTime && packet_->pts < wholeFrom_;
    codec_->skip_frame = mayGo ? AVDISCARD_NONREF : AVDISCARD_DEFAULT;
    avcodec_send_packet(codec_.get(), packet_.get());
    av_packet_unref(packet_.get());
    return;
  }
}

}  // namespace velra
