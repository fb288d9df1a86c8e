// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/PictureConverter.h"

#include "movies/LibAv.h"

namespace velra {

namespace {

constexpr int kFirstHeightOfHd = 720;

// The converter assumes the colours of standard television for everything; where a stream is
// silent, those of high definition are meant from its height on.
int matrixOf(const AVFrame& frame) {
  if (frame.colorspace != AVCOL_SPC_UNSPECIFIED) return frame.colorspace;
  return frame.height >= kFirstHeightOfHd ? SWS_CS_ITU709 : SWS_CS_ITU601;
}

bool fullRange(const AVFrame& frame) {
  return frame.color_range == AVCOL_RANGE_JPEG || frame.format == AV_PIX_FMT_YUVJ420P ||
         frame.format == AV_PIX_FMT_YUVJ422P || frame.format == AV_PIX_FMT_YUVJ444P;
}

}  // namespace

struct PictureConverter::Tables {
  AvScaler scaler;
};

PictureConverter::PictureConverter() : tables_(std::make_unique<Tables>()) {}

PictureConverter::~PictureConverter() = default;

bool PictureConverter::prepare(const AVFrame& frame, int width, int height) {
  AvScaler& scaler = tables_->scaler;
  scaler.reset(sws_getCachedContext(scaler.release(), frame.width, frame.height,
                                    static_cast<AVPixelFormat>(frame.format), width, height,
                                    AV_PIX_FMT_BGRA, SWS_BILINEAR, nullptr, nullptr, nullptr));
  if (!scaler) return false;
  const int one = 1 << 16;
  sws_setColorspaceDetails(scaler.get(), sws_getCoefficients(matrixOf(frame)),
                           fullRange(frame) ? 1 : 0, sws_getCoefficients(SWS_CS_DEFAULT), 1, 0, one,
                           one);
  return true;
}

std::shared_ptr<const PictureFrame> PictureConverter::convert(const AVFrame& frame, int width,
                                                              int height) {
  auto picture = std::make_shared<PictureFrame>();
  picture->width = width > 0 ? width : frame.width;
  picture->height = height > 0 ? height : frame.height;
  if (!prepare(frame, picture->width, picture->height)) return nullptr;
  const int stride = picture->width * 4;
  const auto rows = static_cast<std::size_t>(picture->height);
  picture->pixels.resize(static_cast<std::size_t>(stride) * rows);
  std::uint8_t* const planes[4] = {picture->pixels.data()};
  const int strides[4] = {stride};
  sws_scale(tables_->scaler.get(), frame.data, frame.linesize, 0, frame.height, planes, strides);
  return picture;
}

}  // namespace velra
