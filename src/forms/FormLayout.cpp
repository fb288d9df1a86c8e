// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/FormLayout.h"

#include <algorithm>

namespace velra {

using namespace form_layout;

TwipsSize panelSize(const FormMetrics& metrics, int passes) {
  if (passes > 0) return {kPanelWidth + metrics.vScrollWidth, kPanelHeight + metrics.hScrollHeight};
  return {metrics.inner.width - metrics.vScrollWidth,
          metrics.inner.height - metrics.hScrollHeight - kBelowFirstPanel};
}

std::optional<FormPlaces> placeControls(const FormMetrics& metrics, const TwipsSize& panel) {
  FormPlaces places;
  places.viewport = {0, kTabsHeight, metrics.inner.width, metrics.inner.height - kAroundViewport};
  const int viewportHeight = places.viewport.height;
  places.vScroll = {metrics.inner.width - metrics.vScrollWidth - kScrollBarGap, 0,
                    metrics.vScrollWidth, viewportHeight - kScrollBarGap};
  const int bandTop = kTabsHeight + viewportHeight;
  places.buttonTop = bandTop + (metrics.inner.height - bandTop - metrics.buttonHeight) / 2;
  if (viewportHeight <= 0 || places.vScroll.left <= 0 || places.vScroll.height <= 0 ||
      places.buttonTop <= 0) {
    return std::nullopt;
  }
  places.vScrollMax = viewportHeight - panel.height;
  places.vScrollVisible = viewportHeight < panel.height;
  const int besideBar = places.vScrollVisible ? places.vScroll.left : metrics.inner.width;
  places.hScrollMax = std::min(0, besideBar - kFrameWidth);
  places.hScrollVisible = places.hScrollMax < 0;
  return places;
}

std::int16_t clampedScroll(int value, int max) {
  return static_cast<std::int16_t>(std::clamp(value, std::max(std::min(0, max), INT16_MIN),
                                              std::min(std::max(0, max), INT16_MAX)));
}

std::int16_t wheelScroll(std::int16_t value, int rotation, int max) {
  const int sign = (rotation > 0) - (rotation < 0);
  return clampedScroll(value + sign * kSmallChange, max);
}

std::int16_t scrollToShow(std::int16_t value, int partTop, int partHeight, int viewportHeight,
                          int max) {
  int wanted = value;
  if (partTop + partHeight + wanted > viewportHeight)
    wanted = viewportHeight - partTop - partHeight;
  if (partTop + wanted < 0) wanted = -partTop;
  return clampedScroll(wanted, max);
}

}  // namespace velra
