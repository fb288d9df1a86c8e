// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/PaneLayout.h"

namespace velra {

namespace {

constexpr int kLeastPane = 1500;
constexpr int kLeastDragged = 500;
constexpr int kSplitterWidth = 40;
constexpr int kRightMargin = 140;

// When the window is too narrow for both bounds, the right one holds.
int between(int value, int least, int most) {
  const int raised = value < least ? least : value;
  return raised > most ? most : raised;
}

}  // namespace

PaneLayout SizeControls(int splitterLeft, int windowWidth) {
  const int x = between(splitterLeft, kLeastPane, windowWidth - kLeastPane);
  return {x, x, x + kSplitterWidth, windowWidth - x - kRightMargin};
}

int draggedSplitter(int wantedLeft, int windowWidth) {
  return between(wantedLeft, kLeastDragged, windowWidth - kLeastDragged);
}

}  // namespace velra
