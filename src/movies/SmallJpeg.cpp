// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/SmallJpeg.h"

extern "C" {
#include <libavutil/base64.h>
}

#include <algorithm>
#include <cstring>
#include <functional>
#include <utility>

#include "movies/LibAv.h"
#include "movies/MovieFile.h"

namespace velra {

namespace {

constexpr int kJpegScale = 4;  // 2 is the best that the coder makes, 31 the smallest

AvCodec openCodec(const AVCodec* codec, const std::function<void(AVCodecContext&)>& prepare) {
  AvCodec context(codec ? avcodec_alloc_context3(codec) : nullptr);
  if (!context) return nullptr;
  context->thread_count = 1;
  prepare(*context);
  return avcodec_open2(context.get(), codec, nullptr) < 0 ? nullptr : std::move(context);
}

AvFrame decodedBitmap(std::string_view bytes) {
  const AvCodec decoder =
      openCodec(avcodec_find_decoder(AV_CODEC_ID_BMP),
                [](AVCodecContext& context) { context.max_pixels = MovieFile::kMostPixels; });
  const AvPacket packet(av_packet_alloc());
  AvFrame frame(av_frame_alloc());
  if (!decoder || av_new_packet(packet.get(), static_cast<int>(bytes.size())) < 0) return nullptr;
  std::memcpy(packet->data, bytes.data(), bytes.size());
  if (avcodec_send_packet(decoder.get(), packet.get()) < 0) return nullptr;
  return avcodec_receive_frame(decoder.get(), frame.get()) < 0 ? nullptr : std::move(frame);
}

AvFrame scaled(const AVFrame& picture, int width, int height) {
  AvFrame frame(av_frame_alloc());
  frame->width = width;
  frame->height = height;
  frame->format = AV_PIX_FMT_YUVJ420P;
  const AvScaler scaler(sws_getContext(picture.width, picture.height,
                                       static_cast<AVPixelFormat>(picture.format), width, height,
                                       AV_PIX_FMT_YUVJ420P, SWS_AREA, nullptr, nullptr, nullptr));
  if (!scaler || av_frame_get_buffer(frame.get(), 0) < 0) return nullptr;
  sws_scale(scaler.get(), picture.data, picture.linesize, 0, picture.height, frame->data,
            frame->linesize);
  return frame;
}

AvPacket jpegOf(AVFrame& frame) {
  const AvCodec coder =
      openCodec(avcodec_find_encoder(AV_CODEC_ID_MJPEG), [&](AVCodecContext& context) {
        context.width = frame.width;
        context.height = frame.height;
        context.pix_fmt = AV_PIX_FMT_YUVJ420P;
        context.time_base = {1, 25};
        context.flags |= AV_CODEC_FLAG_QSCALE | AV_CODEC_FLAG_BITEXACT;
        context.global_quality = FF_QP2LAMBDA * kJpegScale;
      });
  AvPacket packet(av_packet_alloc());
  frame.quality = FF_QP2LAMBDA * kJpegScale;
  if (!coder || avcodec_send_frame(coder.get(), &frame) < 0) return nullptr;
  return avcodec_receive_packet(coder.get(), packet.get()) < 0 ? nullptr : std::move(packet);
}

std::string base64(const AVPacket& packet) {
  std::string text(static_cast<std::size_t>((packet.size + 2) / 3 * 4 + 1), '\0');
  av_base64_encode(text.data(), static_cast<int>(text.size()), packet.data, packet.size);
  text.pop_back();
  return text;
}

}  // namespace

EmbeddedPicture smallJpeg(std::string_view bitmap, int mostWidth) {
  av_log_set_level(AV_LOG_QUIET);
  const AvFrame picture = decodedBitmap(bitmap);
  if (!picture || picture->width <= 0 || picture->height <= 0) return {};
  const int width = std::min(mostWidth, picture->width);
  const auto height = static_cast<int>(
      std::max<std::int64_t>(1, std::int64_t{picture->height} * width / picture->width));
  const AvFrame small = scaled(*picture, width, height);
  const AvPacket packet = small ? jpegOf(*small) : nullptr;
  if (!packet) return {};
  return {"data:image/jpeg;base64," + base64(*packet), width, height};
}

}  // namespace velra
