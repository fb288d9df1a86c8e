// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/TimeSelection.h"

#include "tool/AdvancedSlider.h"
#include "tool/ToolFace.h"

namespace velra {

void TimeSelection::begin(double seconds) {
  start_ = seconds;
  waits_ = true;
  face_.runBlinkerTimer(true);
  advsld_.PutBlinkLine(seconds);
}

void TimeSelection::end() {
  if (!waits_) return;
  waits_ = false;
  face_.runBlinkerTimer(false);
  if (coloursSwapped_) face_.swapTimeCodeColours(false);
  coloursSwapped_ = false;
  advsld_.RemoveBlinkLine();
}

void TimeSelection::tick() {
  if (!waits_) return;
  coloursSwapped_ = !coloursSwapped_;
  face_.swapTimeCodeColours(coloursSwapped_);
}

}  // namespace velra
