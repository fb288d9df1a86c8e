// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

/// A time span of a file. Times are seconds from the start of the movie; files hold whole
/// milliseconds.
struct Chunk {
  std::string strStart;  // a text form of the times; nothing fills it
  std::string strEnd;
  double dStart = 0;
  double dend = 0;
  std::string strFile;
};

}  // namespace velra
