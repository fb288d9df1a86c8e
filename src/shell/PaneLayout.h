// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra {

/// Where the two trees of the main window stand, in twips (1440 to the inch).
struct PaneLayout {
  int mainTreeWidth = 0;
  int splitterLeft = 0;
  int expressionLeft = 0;
  int expressionWidth = 0;
};

/// The panes for a wanted left edge of the splitter in a window of the given inner width; neither
/// pane gets narrower than 1500.
PaneLayout SizeControls(int splitterLeft, int windowWidth);

/// The splitter's left edge while it is dragged: at least 500 from either edge of the window.
int draggedSplitter(int wantedLeft, int windowWidth);

/// A main window is never narrower than this.
constexpr int kLeastWindowWidth = 3000;

}  // namespace velra
