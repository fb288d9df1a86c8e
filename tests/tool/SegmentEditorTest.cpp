// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/SegmentEditor.h"

#include "base/RunTimeError.h"
#include "tool/ToolFixture.h"

namespace velra::test {
namespace {

using Texts = std::vector<std::string>;

enum class Path { Sel, New, Modif };

struct Rule {
  const char* name;
  Path path;
  double first, second;  // the presses, or the typed bounds
  int message;           // 0: it passes
  const char* made;      // the new or changed segment
};

class SegmentEditorTest : public ToolTest {
 protected:
  SegmentEditor& segments() { return tool->segments; }
  void useThree() {
    use(ObjectKind::Video);
    for (const int start : {10, 30, 50}) add("s" + std::to_string(start), start, start + 10);
    ASSERT_TRUE(open());
  }
  /// The marks of the timeline and the squares of the strip: X for one that is shown as selected.
  std::string marked() const {
    std::string all;
    for (const auto& mark : tool->advsld.marks()) {
      all += mark.borderWidth == AdvancedSlider::kSelectedBorder ? 'X' : '-';
    }
    all += ' ';
    for (std::int16_t i = 1; i <= tool->Framelist1.Count(); ++i) {
      all += tool->Framelist1.image(i).squareVisible ? 'X' : '-';
    }
    return all;
  }
  void press(double at) {
    tool->player.SeekTo(at);
    segments().SelectSegmentPoint();
  }
  void typeBounds(double from, double to) {
    const auto two = [](double t) { return std::to_string(std::lround(t)); };
    const auto minute = [&](double t) { return two(std::floor(t / 60)); };
    typeInDialog({"0", minute(from), two(std::fmod(from, 60)), "0", "0", minute(to),
                  two(std::fmod(to, 60)), "0"});
  }
  Texts perform(const Rule& rule) {
    if (rule.path == Path::Sel) {
      press(rule.first);
      press(rule.second);
      return ui.takeShown();
    }
    typeBounds(rule.first, rule.second);
    if (rule.path == Path::New) {
      segments().NewSegmentByDialog();
    } else {
      tool->advsld.MouseDown(1, 0);
      segments().ModifySelectedSegment();
    }
    return ui.takeShown();
  }
};

// Every way of making a segment has its own rules: all beside one existing segment from 10 to 20.
const Rule kRules[] = {
    {"forward in a gap", Path::Sel, 25, 30, 0, "new 25-30"},
    {"backward is put in order", Path::Sel, 30, 25, 0, "new 25-30"},
    {"no length", Path::Sel, 25, 25, 0, "new 25-25"},
    {"start inside", Path::Sel, 15, 30, 1118, nullptr},
    {"end inside", Path::Sel, 5, 15, 1119, nullptr},
    {"forward around", Path::Sel, 5, 25, 1149, nullptr},
    {"an exact copy", Path::Sel, 10, 20, 1149, nullptr},
    {"backward around", Path::Sel, 25, 5, 0, "new 5-25"},
    {"touching", Path::Sel, 20, 25, 0, "new 20-25"},
    {"dialog in a gap", Path::New, 25, 30, 0, "new 25-30"},
    {"dialog reversed", Path::New, 30, 25, 1102, nullptr},
    {"dialog without length", Path::New, 25, 25, 0, "new 25-25"},
    {"dialog bound inside", Path::New, 5, 15, 1120, nullptr},
    {"dialog around", Path::New, 5, 25, 0, "new 5-25"},
    {"dialog end behind the movie", Path::New, 90, 110, 0, "new 90-100"},
    {"dialog all behind the movie", Path::New, 105, 110, 1102, nullptr},
    {"change reversed", Path::Modif, 30, 25, 1102, nullptr},
    {"change beyond the movie", Path::Modif, 50, 110, 0, "old 50-100"},
    {"change without length", Path::Modif, 3, 3, 0, "old 3-3"},
};

TEST_F(SegmentEditorTest, EachPathHasItsOwnRules) {
  for (const Rule& rule : kRules) {
    SCOPED_TRACE(rule.name);
    use(ObjectKind::Audio);
    add("old", 10, 20);
    ASSERT_TRUE(open());
    ui.inputs = {"new"};
    const Texts shown = perform(rule);
    const Texts box{"input: " + app.messages.text(1103) + " | " + app.messages.text(1104)};
    const bool asksTitle = rule.message == 0 && rule.path != Path::Modif;
    if (rule.message == 1118) {
      ui.inputs.clear();  // the second press was the first of a new selection
      EXPECT_EQ(shown, plain(1118));
    } else {
      EXPECT_EQ(shown, rule.message ? plain(rule.message) : asksTitle ? box : Texts{});
    }
    const Texts all = spans();
    EXPECT_EQ(all.size(), asksTitle ? 2u : 1u);
    if (rule.made) {
      EXPECT_EQ(all.back(), rule.made);
    }
    EXPECT_EQ(tool->advsld.Count(), static_cast<int>(all.size()));
  }
}

TEST_F(SegmentEditorTest, WhatIsNotMadeLeavesNoTrace) {
  use(ObjectKind::Video);
  ASSERT_TRUE(open());
  face.inDialog = [](RangeDialog& shown) { shown.CancelButton(); };
  segments().NewSegmentByDialog();
  for (const char* title : {"", "refused"}) {
    obj->refusesNewSegments = *title != 0;
    ui.inputs = {title};
    press(10);
    press(20);
    EXPECT_TRUE(spans().empty());
    EXPECT_EQ(marked(), " ");
    EXPECT_FALSE(segments().bSelecting());
  }
  useThree();
  const Texts before = spans();
  tool->advsld.MouseDown(1, 0);
  segments().ModifySelectedSegment();
  EXPECT_EQ(spans(), before);
}

TEST_F(SegmentEditorTest, TheTimeCodeBlinksUntilTheSelectionEnds) {
  use(ObjectKind::Audio);
  ASSERT_TRUE(open());
  press(10);
  EXPECT_TRUE(face.blinker);
  EXPECT_TRUE(tool->advsld.blinkLine().visible);
  segments().BlinkerTimer();
  EXPECT_TRUE(face.swapped);
  tool->Form_KeyUp(ExpressionTool::kEscKey, 1);
  EXPECT_TRUE(segments().bSelecting()) << "Shift and Esc do nothing";
  tool->Form_KeyUp(ExpressionTool::kEscKey, 0);
  EXPECT_FALSE(face.blinker || face.swapped || tool->advsld.blinkLine().visible);
  press(10);
  segments().BlinkerTimer();
  segments().BlinkerTimer();
  press(20);
  EXPECT_FALSE(face.swapped || face.blinker);
}

TEST_F(SegmentEditorTest, ANewVideoSegmentReachesStripAndMainWindow) {
  use(ObjectKind::Video);
  add("late", 50, 60);
  ASSERT_TRUE(open());
  ui.inputs = {"early"};
  press(10);
  press(12.2);
  EXPECT_EQ(tool->advsld.marks()[1].caption, "'early': From 00:00:10:00 To 00:00:12:05");
  EXPECT_EQ(tool->Framelist1.image(2).caption, tool->advsld.marks()[1].caption);
  EXPECT_EQ(tool->Framelist1.image(2).tag, 1);
  EXPECT_EQ(tool->Framelist1.image(1).tag, 2);
  EXPECT_EQ(mainWindow.calls, (Texts{"AddSmallKeyFrame early", "ResetTree"}));
}

TEST_F(SegmentEditorTest, RemovalAsksAndClosesTheChain) {
  useThree();
  tool->Form_KeyUp(ExpressionTool::kDeleteKey, 0);
  EXPECT_TRUE(ui.takeShown().empty()) << "nothing selected";
  tool->advsld.MouseDown(2, 0);
  tool->Form_KeyUp(ExpressionTool::kDeleteKey, 1);
  EXPECT_TRUE(ui.takeShown().empty()) << "Shift and Delete do nothing";
  tool->Form_KeyUp(ExpressionTool::kDeleteKey, 0);
  EXPECT_EQ(ui.takeShown(), Texts{"yes-no: " + app.messages.text(1101)});
  EXPECT_EQ(spans().size(), 3u);
  ui.yesNo = {true, true};
  segments().ConfirmRemoveSegments();
  EXPECT_EQ(spans(), (Texts{"s10 10-20", "s50 50-60"}));
  EXPECT_EQ(obj->child(1)->follower, ExpressionRef(obj->child(2)));
  EXPECT_EQ(marked(), "-X -X") << "the old number stands for the next segment, and shows it";
  segments().ConfirmRemoveSegments();
  EXPECT_EQ(spans(), Texts{"s10 10-20"});
  EXPECT_EQ(marked(), "- -") << "past the end nothing is selected";
  tool->advsld.Resize(9000);
  tool->player.SeekTo(25);
  segments().ExtendPreviousSegment();
  segments().ConfirmRemoveSegments();
  EXPECT_EQ(spans(), Texts{"s10 10-25"});
}

TEST_F(SegmentEditorTest, WhatTheTimelineSelectsGoesFromAllLists) {
  useThree();
  obj->child(2)->SetChunk(70, 80);  // it keeps its place on the strip
  add("inside", 10, 12);            // begins with another
  ASSERT_TRUE(open());
  tool->advsld.MouseDown(1, 0);
  tool->advsld.MouseDown(3, 1);
  ui.yesNo = {true};
  segments().ConfirmRemoveSegments();
  EXPECT_EQ(spans(), Texts{"s30 70-80"});
  EXPECT_EQ(tool->Framelist1.image(1).caption, tool->advsld.marks()[0].caption);
  EXPECT_EQ(marked(), "- -");
}

TEST_F(SegmentEditorTest, ANewSegmentInTheSelectedStretchIsMarked) {
  useThree();
  tool->advsld.MouseDown(1, 0);
  tool->advsld.MouseDown(3, 1);
  ui.inputs = {"new"};
  press(22);
  press(25);
  EXPECT_EQ(marked(), "XXXX XXXX");
}

TEST_F(SegmentEditorTest, MergingGoesByListPositionAndKeepsTheFirstTitle) {
  useThree();
  tool->advsld.MouseDown(3, 0);
  tool->advsld.MouseDown(1, 1);
  ui.yesNo = {true};
  segments().MergeSelectedSegments();
  EXPECT_EQ(ui.takeShown(), Texts{"yes-no: " + app.messages.text(1150)});
  EXPECT_EQ(spans(), Texts{"s50 10-60"});
  EXPECT_EQ(marked(), "- -") << "two numbers and one segment";
  tool->advsld.Resize(9000);
}

TEST_F(SegmentEditorTest, AMergeWithReversedBoundsChangesNothing) {
  use(ObjectKind::Video);
  add("late", 50, 60);
  add("early", 10, 20);
  ASSERT_TRUE(open());
  tool->advsld.MouseDown(1, 0);
  tool->advsld.MouseDown(2, 1);
  ui.yesNo = {true};
  segments().MergeSelectedSegments();
  EXPECT_EQ(ui.takeShown().back(), plain(1102).front());
  EXPECT_EQ(spans(), (Texts{"late 50-60", "early 10-20"}));
  EXPECT_EQ(marked(), "XX XX");
}

TEST_F(SegmentEditorTest, ASegmentOfNoLengthOpensWithASentence) {
  use(ObjectKind::Video, 10, 10);
  add("child", 10, 10);
  ASSERT_TRUE(open());
  EXPECT_EQ(shownAtOpening,
            Texts{"plain: This segment has no length: nothing can be cut on its timeline."});
  EXPECT_FALSE(tool->advsld.Enabled());
  tool->player.cmdForward();
  tool->Framelist1.MouseDown(1, 0);
  EXPECT_EQ(movie.position, 10);
}

TEST_F(SegmentEditorTest, BoundsAreReachedAndMovedAlongTheChain) {
  use(ObjectKind::Audio);
  add("B", 20, 30);
  add("A", 0, 10);
  ASSERT_TRUE(open());
  struct Case {
    double at;
    void (SegmentEditor::*command)();
    double then;
    Texts segments;
  };
  const Texts same{"B 20-30", "A 0-10"};
  const Case cases[] = {
      {15, &SegmentEditor::MoveToNextBound, 20, same},
      {20, &SegmentEditor::MoveToNextBound, 30, same},
      {30, &SegmentEditor::MoveToNextBound, 30, same},
      {15, &SegmentEditor::MoveToPreviousBound, 10, same},
      {0, &SegmentEditor::MoveToPreviousBound, 0, same},
      {10, &SegmentEditor::ExtendPreviousSegment, 10, same},
      {20, &SegmentEditor::ExtendNextSegment, 20, same},
      {31, &SegmentEditor::ExtendNextSegment, 31, same},
      {25, &SegmentEditor::ExtendPreviousSegment, 25, {"B 20-30", "A 0-25"}},
      {15, &SegmentEditor::ExtendNextSegment, 15, {"B 15-30", "A 0-25"}},
  };
  for (const Case& row : cases) {
    tool->player.SeekTo(row.at);
    (segments().*row.command)();
    EXPECT_EQ(movie.position, row.then) << row.at;
    EXPECT_EQ(spans(), row.segments) << row.at;
  }
  EXPECT_EQ(tool->advsld.colRanges().Item(1)->dBegin, 15);
}

TEST_F(SegmentEditorTest, ClicksKeepTimelineAndStripInStep) {
  use(ObjectKind::Video, 5, 100);
  for (const int start : {10, 30, 50}) add("s", start, start + 10);
  add("outside", 1, 3);
  ASSERT_TRUE(open());
  tool->advsld.MouseDown(1, 0);
  tool->advsld.MouseDown(3, 1);
  EXPECT_EQ(movie.position, 10);
  EXPECT_EQ(tool->Framelist1.iSelectedStart(), 1);
  EXPECT_EQ(tool->Framelist1.iSelectedEnd(), 3);
  tool->Framelist1.MouseDown(4, 0);
  EXPECT_EQ(movie.position, 5) << "the jump takes the clamped time";
  EXPECT_EQ(tool->advsld.iRangeSelectedStart(), 4);
  tool->advsld.UserMovesThumb(2500);
  EXPECT_EQ(movie.position, 52.5);
}

TEST_F(SegmentEditorTest, TheKeyFrameOfTheExpressionItselfChanges) {
  use(ObjectKind::Video);
  ASSERT_TRUE(open());
  tool->player.SeekTo(7);
  segments().ChangeKeyFrame();
  EXPECT_EQ(obj->keyFrameTime, -1) << "No";
  ui.takeShown();
  ui.yesNo = {true};
  segments().ChangeKeyFrame();
  EXPECT_EQ(obj->keyFrameTime, 7);
  EXPECT_EQ(mainWindow.calls, Texts{"UpdateSmallKeyFrames"});
  EXPECT_EQ(ui.takeShown(),
            (Texts{"yes-no: " + app.messages.text(1176), "plain: " + app.messages.text(1177)}));
}

}  // namespace
}  // namespace velra::test
