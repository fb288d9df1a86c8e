// SPDX-License-Identifier: GPL-3.0-or-later

// A file that names an object of a server.

#include "fuzz/FuzzSession.h"
#include "shell/LinkFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static velra::fuzz::FuzzSession session;
  velra::strReadFirstLine(session.app, session.file(data, size));
  return 0;
}
