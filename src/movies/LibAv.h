// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/cpu.h>
#include <libavutil/imgutils.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
#include <libswscale/swscale.h>
}

#include <cstdint>
#include <limits>
#include <memory>

/// The decoder library's objects with owners that release them. Included inside
/// this folder alone, never by a header that other folders see.
namespace velra {

struct AvRelease {
  void operator()(AVFormatContext* context) const { avformat_close_input(&context); }
  void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
  void operator()(AVFrame* frame) const { av_frame_free(&frame); }
  void operator()(AVPacket* packet) const { av_packet_free(&packet); }
  void operator()(SwsContext* context) const { sws_freeContext(context); }
  void operator()(SwrContext* context) const { swr_free(&context); }
};

using AvFormat = std::unique_ptr<AVFormatContext, AvRelease>;
using AvCodec = std::unique_ptr<AVCodecContext, AvRelease>;
using AvFrame = std::unique_ptr<AVFrame, AvRelease>;
using AvPacket = std::unique_ptr<AVPacket, AvRelease>;
using AvScaler = std::unique_ptr<SwsContext, AvRelease>;
using AvResampler = std::unique_ptr<SwrContext, AvRelease>;

/// The library's macro for "no time stamp" casts in the old style.
inline constexpr std::int64_t kNoTime = std::numeric_limits<std::int64_t>::min();
static_assert(kNoTime == AV_NOPTS_VALUE);

}  // namespace velra
