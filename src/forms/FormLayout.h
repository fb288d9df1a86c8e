// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

/// Where the parts of a generated form stand, in twips.
namespace velra {

namespace form_layout {

inline constexpr int kSlotPitch = 1300;
inline constexpr int kFirstSlotTop = 100;
inline constexpr int kFrameWidth = 7500;
inline constexpr int kFrameHeight = 1200;
inline constexpr int kControlLeft = 200;
inline constexpr int kControlWidth = 7000;
inline constexpr int kControlHeight = 900;
inline constexpr int kDateWidth = 1320;
inline constexpr int kDateHeight = 330;
inline constexpr int kPanelWidth = 7700;    // and the width of VScroll1
inline constexpr int kPanelHeight = 13000;  // and the height of HScroll1
inline constexpr int kTabsHeight = 400;
inline constexpr int kAroundViewport = 1600;
inline constexpr int kScrollBarGap = 50;
inline constexpr int kSmallChange = 100;
inline constexpr int kBelowFirstPanel = 1000;

constexpr int slotTop(int slot) {
  return kFirstSlotTop + kSlotPitch * slot;
}

}  // namespace form_layout

struct TwipsSize {
  int width = 0;
  int height = 0;
};

struct TwipsRect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

/// What the layout has to know of the window.
struct FormMetrics {
  TwipsSize inner;       ///< of the form, without the window's frame
  int vScrollWidth = 0;  ///< of VScroll1
  int hScrollHeight = 0;
  int buttonHeight = 0;
};

/// The size of the panel: as the form's load gives it, and after `passes` of SetFrameHeight, which
/// from the first on make it ten slots high.
TwipsSize panelSize(const FormMetrics& metrics, int passes);

struct FormPlaces {
  TwipsRect viewport;  ///< Picture2, in the form
  TwipsRect vScroll;   ///< VScroll1, in the viewport
  int vScrollMax = 0;  ///< 0 or less: it runs from 0 down to this; else the panel is lower
  bool vScrollVisible = false;
  int hScrollMax = 0;  ///< 0 or less
  bool hScrollVisible = false;
  int buttonTop = 0;
};

/// Form_Controls_Resize; nothing when the form is so small that a part would have no size.
std::optional<FormPlaces> placeControls(const FormMetrics& metrics, const TwipsSize& panel);

/// A scroll value, kept between the two ends of the bar's range: 0 and `max`, in either order.
std::int16_t clampedScroll(int value, int max);

/// The scroll value after a turn of the wheel: away from the person (a positive rotation) moves the
/// panel down.
std::int16_t wheelScroll(std::int16_t value, int rotation, int max);

/// The scroll value at which a part of the panel is in view, nearest to the present one.
std::int16_t scrollToShow(std::int16_t value, int partTop, int partHeight, int viewportHeight,
                          int max);

}  // namespace velra
