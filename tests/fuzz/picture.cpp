// SPDX-License-Identifier: GPL-3.0-or-later

// A key-frame picture.

#include "base/RunTimeError.h"
#include "fuzz/FuzzSession.h"
#include "platform/files/BitmapCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static velra::fuzz::FuzzSession session;
  try {
    velra::checkBitmap(session.file(data, size, "frame.bmp"));
  } catch (const velra::RunTimeError&) {
    // It is no picture.
  }
  return 0;
}
