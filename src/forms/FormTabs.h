// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace velra {

inline constexpr int kBoxesOfATab = 10;
inline constexpr int kMaxTabs = 100;

/// The vertical scroll values of the tabs, in twips: 0 is the start, a panel moved up is negative.
/// Tabs count from 1 to kMaxTabs; any other number raises kSubscriptOutOfRange. It lives as long as
/// the form's object, so a form opens again where it was left.
class TabScroll {
 public:
  std::int16_t operator[](int tab) const;
  void set(int tab, std::int16_t value);

 private:
  std::array<std::int16_t, kMaxTabs> values_{};
};

/// Places of `colControls`, both included; empty when `first` is above `last`.
struct BoxRange {
  int first = 1;
  int last = 0;
};

/// The tabs of a generated form: ten boxes a tab. Tabs count from 1.
class FormTabs {
 public:
  /// Tabs of fields alone, at least one: (n - 1) \ 10 further ones for n fields.
  static FormTabs ofFields(int fieldCount);

  /// One tab of the form's own and n \ 10 + 1 tabs of fields behind it.
  static FormTabs behindOwnTab(const std::string& ownCaption, int fieldCount);

  int count() const { return static_cast<int>(ownTab_) + fieldTabs_; }

  /// "Set " and the number among the tabs of fields, or the own tab's caption.
  std::string caption(int tab) const;
  /// "Set " and the number among all tabs; "" for the first.
  std::string key(int tab) const;

  bool isOwnTab(int tab) const { return tab <= static_cast<int>(ownTab_); }

  /// The boxes that a tab of fields shows when `boxCount` boxes are there.
  BoxRange boxes(int tab, int boxCount) const;

 private:
  FormTabs(bool ownTab, std::string ownCaption, int fieldTabs);

  bool ownTab_;
  std::string ownCaption_;
  int fieldTabs_;
};

}  // namespace velra
