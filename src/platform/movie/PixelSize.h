// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra {

struct PixelSize {
  int width = 0;
  int height = 0;
};

}  // namespace velra
