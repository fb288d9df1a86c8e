// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/FormTabs.h"

#include <algorithm>
#include <utility>

#include "base/RunTimeError.h"

namespace velra {

namespace {

std::size_t checked(int tab) {
  if (tab < 1 || tab > kMaxTabs) raise(kSubscriptOutOfRange);
  return static_cast<std::size_t>(tab) - 1;
}

}  // namespace

std::int16_t TabScroll::operator[](int tab) const {
  return values_[checked(tab)];
}

void TabScroll::set(int tab, std::int16_t value) {
  values_[checked(tab)] = value;
}

FormTabs::FormTabs(bool ownTab, std::string ownCaption, int fieldTabs)
    : ownTab_(ownTab), ownCaption_(std::move(ownCaption)), fieldTabs_(fieldTabs) {}

FormTabs FormTabs::ofFields(int fieldCount) {
  return {false, {}, 1 + (fieldCount - 1) / kBoxesOfATab};
}

FormTabs FormTabs::behindOwnTab(const std::string& ownCaption, int fieldCount) {
  return {true, ownCaption, fieldCount / kBoxesOfATab + 1};
}

std::string FormTabs::caption(int tab) const {
  if (isOwnTab(tab)) return ownCaption_;
  return "Set " + std::to_string(tab - static_cast<int>(ownTab_));
}

std::string FormTabs::key(int tab) const {
  return tab == 1 ? std::string() : "Set " + std::to_string(tab);
}

BoxRange FormTabs::boxes(int tab, int boxCount) const {
  const int set = tab - static_cast<int>(ownTab_);
  return {(set - 1) * kBoxesOfATab + 1, std::min(set * kBoxesOfATab, boxCount)};
}

}  // namespace velra
