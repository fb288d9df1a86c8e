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

void grabFrame(const std::string& path, double seconds, PixelSize size,
               const std::string& targetBmp) {
  FrameSource source;
  if (const std::string reason = source.open(path); !reason.empty()) refuse(path, reason);
  if (size.width <= 0 || size.height <= 0) size = source.size();
  const auto picture = source.at(seconds);
  PictureConverter converter;
  const auto pixels =
      picture ? converter.convert(*picture->frame, size.width, size.height) : nullptr;
  if (!pixels) refuse(path, "The picture cannot be decoded.");
  if (const std::string reason = writeBitmap(*pixels, targetBmp); !reason.empty()) {
    refuse(targetBmp, reason);
  }
}

}  // namespace velra
