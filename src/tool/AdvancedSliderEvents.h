// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

namespace velra {

/// What the person does on the timeline, and what its pixels must follow. Unset functions are not
/// called.
struct AdvancedSliderEvents {
  std::function<void(std::int16_t)> DblClick;
  std::function<void(std::int16_t)> Click;
  std::function<void()> Scroll;
  std::function<void(bool)> Step;  ///< an arrow key: one picture on (true) or back
  std::function<void(std::string_view)> PropertyChanged;  ///< a setter ran; its property's name
  std::function<void()> Repaint;                          ///< marks or blink line look different
  std::function<void()> ThumbMoved;
  std::function<void(bool)> RunBlinkTimer;  ///< 500 ms between ticks

  void tellPropertyChanged(std::string_view property) const {
    if (PropertyChanged) PropertyChanged(property);
  }
  void tellRepaint() const {
    if (Repaint) Repaint();
  }
};

}  // namespace velra
