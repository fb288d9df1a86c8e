// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/FrameGrabber.h"

#include "base/RunTimeError.h"
#include "platform/files/Bitmap.h"
#include "platform/movie/MovieLibrary.h"

namespace velra {

namespace {

[[noreturn]] void refuse(const std::string& path, const std::string& reason) {
  throw RunTimeError(kInvalidArgument, path + ": " + reason);
}

}  // namespace

FrameGrabber::FrameGrabber(const std::string& path) : path_(path) {
  std::string reason;
  stills_ = movieLibrary().stills(path, reason);
  if (!stills_) refuse(path, reason);
}

FrameGrabber::~FrameGrabber() = default;

void FrameGrabber::grab(double seconds, PixelSize size, const std::string& targetBmp) {
  const auto pixels = stills_->at(seconds, size);
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
