// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/PacketOrder.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "movies/LibAv.h"
#include "movies/PictureClock.h"

namespace velra {

namespace {

// No decoder holds back more pictures than that.
constexpr std::size_t kMostWaiting = 20;

// No picture of a stream is shown so many seconds before one that stands before it; those of a
// container may be, where one before them is shown for long.
constexpr double kMostFall = 1;

// Of so many packets one may have lost its stamp, as where others leap.
constexpr std::int64_t kPacketsPerLoss = 50;

bool showsAfter(const OrderedPacket& a, const OrderedPacket& b) {
  return a.ticks > b.ticks;
}

}  // namespace

struct PacketOrder::Parser {
  struct Close {
    void operator()(AVCodecParserContext* parser) const { av_parser_close(parser); }
  };
  std::unique_ptr<AVCodecParserContext, Close> context;
  AvCodec codec;

  explicit Parser(const AVCodecParameters& parameters)
      : context(av_parser_init(parameters.codec_id)), codec(avcodec_alloc_context3(nullptr)) {
    avcodec_parameters_to_context(codec.get(), &parameters);
    if (context) context->flags |= PARSER_FLAG_COMPLETE_FRAMES;
  }

  void parse(const AVPacket& packet) {
    std::uint8_t* data = nullptr;
    int size = 0;
    av_parser_parse2(context.get(), codec.get(), &data, &size, packet.data, packet.size, packet.pts,
                     packet.dts, packet.pos);
  }
};

PacketOrder::PacketOrder(const AVStream& stream, bool bareStamps, double leap, Receiver receiver)
    : receiver_(std::move(receiver)),
      leap_(leap),
      fall_(bareStamps ? kMostFall / av_q2d(stream.time_base)
                       : std::numeric_limits<double>::infinity()),
      bareStamps_(bareStamps),
      lastTicks_(kNoTime) {
  if (!bareStamps_) return;
  const AVCodecID codec = stream.codecpar->codec_id;
  repeatsFields_ = codec == AV_CODEC_ID_MPEG2VIDEO || codec == AV_CODEC_ID_H264;
  hasTypes_ = codec == AV_CODEC_ID_MPEG1VIDEO || codec == AV_CODEC_ID_MPEG2VIDEO ||
              codec == AV_CODEC_ID_MPEG4;
  parser_ = std::make_unique<Parser>(*stream.codecpar);
}

PacketOrder::~PacketOrder() = default;

OrderedPacket PacketOrder::describe(const AVPacket& packet) {
  // A packet that is not the first to begin in a stretch of bytes has no position of its own.
  behind_ = packet.pos >= 0 ? 0 : behind_ + 1;
  if (packet.pos >= 0) position_ = packet.pos;
  return {packet.pts,
          position_,
          behind_,
          packet.size,
          PictureClock::kFields,
          (packet.flags & AV_PKT_FLAG_KEY) != 0};
}

void PacketOrder::take(const AVPacket& packet) {
  ++taken_;
  OrderedPacket described = describe(packet);
  // What an edit hides is no picture, and an empty packet repeats the one before it.
  if ((packet.flags & AV_PKT_FLAG_DISCARD) != 0 || packet.size == 0) return;
  if (parser_ && parser_->context) {
    parser_->parse(packet);
    // Where repeated fields are unknown the parser says nothing, which is one field.
    const int fields = parser_->context->repeat_pict + 1;
    if (repeatsFields_) described.fields = fields;
  }
  if (hasTypes_) {
    takeByType(described);
  } else if (described.ticks != kNoTime) {
    takeByStamp(described);
  } else if (!bareStamps_ || lastTicks_ != kNoTime) {
    ++unplaced_;
  } else {
    takeByCount(described);
  }
}

// Pictures that lean on both sides are shown at once; each other one waits until the next of its
// kind.
void PacketOrder::takeByType(const OrderedPacket& packet) {
  if (parser_->context->pict_type == AV_PICTURE_TYPE_B) {
    receiver_(packet);
    return;
  }
  finish();
  waiting_.push_back(packet);
}

void PacketOrder::takeByStamp(const OrderedPacket& packet) {
  const auto distance = static_cast<double>(packet.ticks) - static_cast<double>(lastTicks_);
  if (lastTicks_ != kNoTime && (distance > leap_ || distance < -fall_)) finish();
  lastTicks_ = packet.ticks;
  waiting_.push_back(packet);
  std::push_heap(waiting_.begin(), waiting_.end(), showsAfter);
  if (waiting_.size() > kMostWaiting) giveEarliest();
}

// Without types and stamps only the numbers are right, and those only where a new row begins.
void PacketOrder::takeByCount(OrderedPacket packet) {
  packet.key = packet.key && parser_->context && parser_->context->output_picture_number == 0;
  receiver_(packet);
}

bool PacketOrder::sure() const {
  return bareStamps_ || unplaced_ * kPacketsPerLoss <= taken_;
}

void PacketOrder::giveEarliest() {
  std::pop_heap(waiting_.begin(), waiting_.end(), showsAfter);
  const OrderedPacket packet = waiting_.back();
  waiting_.pop_back();
  receiver_(packet);
}

void PacketOrder::finish() {
  while (!waiting_.empty()) giveEarliest();
}

}  // namespace velra
