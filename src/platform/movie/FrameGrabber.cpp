// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/FrameGrabber.h"

#include "base/RunTimeError.h"
#include "platform/files/Bitmap.h"
#include "platform/movie/FrameSource.h"
#include "platform/movie/PictureConverter.h"

namespace velra {

namespace {

[[noreturn]] void refuse(const std::string& path, const std::string& reason) {
  throw RunTimeError(kInvalidArgument, path + ": " + reason);
}

}  // namespace

FrameGrabber::FrameGrabber(const std::string& path)
    : path_(path),
      source_(std::make_unique<FrameSource>()),
      converter_(std::make_unique<PictureConverter>()) {
  if (const std::string reason = source_->open(path); !reason.empty()) refuse(path, reason);
}

FrameGrabber::~FrameGrabber() = default;

void FrameGrabber::grab(double seconds, PixelSize size, const std::string& targetBmp) {
  if (size.width <= 0 || size.height <= 0) size = source_->size();
  const auto picture = source_->at(seconds);
  const auto pixels =
      picture ? converter_->convert(*picture->frame, size.width, size.height) : nullptr;
  if (!pixels) refuse(path_, "The picture cannot be decoded.");
  if (const std::string reason = writeBitmap(*pixels, targetBmp); !reason.empty()) {
    refuse(targetBmp, reason);
  }
}

void grabFrame(const std::string& path, double seconds, PixelSize size,
               const std::string& targetBmp) {
  FrameGrabber(path).grab(seconds, size, targetBmp);
}

}  // namespace velra
