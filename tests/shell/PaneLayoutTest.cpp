#include "shell/PaneLayout.h"

#include <gtest/gtest.h>

namespace velra {
namespace {

TEST(PaneLayout, NeitherPaneGetsNarrowerThanItsLeast) {
  const struct {
    int wanted, window, splitter;
  } rows[] = {{-200, 9000, 1500}, {1499, 9000, 1500}, {1500, 9000, 1500}, {4000, 9000, 4000},
              {7500, 9000, 7500}, {7501, 9000, 7500}, {2000, 3000, 1500}};
  for (const auto& row : rows) {
    const PaneLayout panes = SizeControls(row.wanted, row.window);
    EXPECT_EQ(panes.splitterLeft, row.splitter) << row.wanted;
    EXPECT_EQ(panes.mainTreeWidth, row.splitter);
    EXPECT_EQ(panes.expressionLeft, row.splitter + 40);
    EXPECT_EQ(panes.expressionWidth, row.window - row.splitter - 140);
  }
}

TEST(PaneLayout, DraggedSplitterStaysInsideTheWindow) {
  EXPECT_EQ(draggedSplitter(-5, 9000), 500);
  EXPECT_EQ(draggedSplitter(501, 9000), 501);
  EXPECT_EQ(draggedSplitter(8600, 9000), 8500);
}

}  // namespace
}  // namespace velra
