// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "values/RareText.h"

namespace velra {

/// A time span of a file. Times are seconds from the start of the movie; files hold whole
/// milliseconds.
struct Chunk {
  RareText strStart;  // a text form of the times; nothing fills it
  RareText strEnd;
  double dStart = 0;
  double dend = 0;
  std::string strFile;
};

}  // namespace velra
