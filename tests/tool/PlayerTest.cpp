// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/Player.h"

#include "base/RunTimeError.h"
#include "tool/ToolFixture.h"

namespace velra::test {
namespace {

using Calls = std::vector<std::string>;

class PlayerTest : public ToolTest {};

TEST_F(PlayerTest, AMovieOpensAtTheStartOfTheSpan) {
  use(ObjectKind::Video, 10, 20);
  ASSERT_TRUE(open());
  EXPECT_EQ(movie.takeCalls(), (Calls{"RenderFile", "seek", "Pause"}));
  EXPECT_EQ(face.timeCode, "00:00:10:00");
  EXPECT_EQ(obj->frameRate, 25);
  EXPECT_EQ(tool->advsld.dMin(), 10);
  EXPECT_EQ(tool->advsld.dMax(), 20);
  EXPECT_EQ(tool->advsld.dLargeChange(), 0.1);
  EXPECT_TRUE(tool->advsld.Enabled());
}

TEST_F(PlayerTest, OnlyAVideoKeepsTheFrameRate) {
  use(ObjectKind::Audio);
  ASSERT_TRUE(open());
  EXPECT_EQ(obj->frameRate, 0);
  EXPECT_EQ(tool->player.dFrameRate(), 25);
  movie.frameLength = 0;
  use(ObjectKind::Video);
  ASSERT_TRUE(open());
  EXPECT_EQ(tool->player.dFrameRate(), 0);
  tool->player.SeekTo(12.9);
  EXPECT_EQ(face.timeCode, "00:00:12:00");
}

TEST_F(PlayerTest, AnEndBehindTheMovieIsCutToItsLength) {
  struct Case {
    double start, end, kept;
  };
  for (const Case& row :
       {Case{0, 100, 100}, Case{0, 101, 100}, Case{50, 150, 150}, Case{50, 151, 100}}) {
    use(ObjectKind::Video, row.start, row.end);
    ASSERT_TRUE(open());
    EXPECT_EQ(obj->span->dend, row.kept) << row.end;
  }
  movie.duration = 0;  // unknown
  use(ObjectKind::Video, 0, 60);
  ASSERT_TRUE(open());
  EXPECT_EQ(obj->span->dend, 60);
}

TEST_F(PlayerTest, ANegativeBoundLeavesThePositionAlone) {
  use(ObjectKind::Audio, -5, 20);
  movie.position = 7;
  ASSERT_TRUE(open());
  EXPECT_EQ(movie.takeCalls(), Calls{"RenderFile"});
  EXPECT_EQ(face.timeCode, "00:00:00:00");
}

TEST_F(PlayerTest, NoPathMeansNoMovie) {
  use(ObjectKind::Audio);
  obj->movie.clear();
  tool = std::make_unique<ExpressionTool>(
      obj, app, [this] { return std::make_unique<ScriptedMediaGraph>(movie); }, dialog, face);
  ASSERT_TRUE(tool->LoadMovie());
  tool->LoadSegments();
  EXPECT_EQ(ui.takeShown(), plain(1091));
  EXPECT_FALSE(tool->player.hasMovie());
  EXPECT_FALSE(tool->advsld.Enabled());
  tool->player.cmdPlay();
  tool->player.cmdForward();
  tool->segments.SelectSegmentPoint();
  tool->segments.NewSegmentByDialog();
  tool->segments.MoveToNextBound();
  EXPECT_TRUE(movie.calls.empty());
  EXPECT_TRUE(ui.shown.empty());
}

TEST_F(PlayerTest, AMovieThatCannotBePlayedOpensNoForm) {
  use(ObjectKind::Video);
  movie.refusal = "No picture in it.";
  EXPECT_FALSE(open());
  EXPECT_EQ(ui.takeShown(), Calls{"exclamation: No picture in it.\n" + obj->movie});
  EXPECT_EQ(movie.opened, 0);
  obj->movie = folder / "absent.avi";
  EXPECT_FALSE(open());
  EXPECT_EQ(ui.takeShown(), Calls{"exclamation: The movie file was not found.\n" + obj->movie});
}

TEST_F(PlayerTest, StepsMoveOneFrameAndEndOnTheBounds) {
  use(ObjectKind::Video, 10, 99);
  ASSERT_TRUE(open());
  struct Case {
    double from;
    void (Player::*step)();
    double to;
  };
  const Case cases[] = {
      {10, &Player::cmdRewind, 10},
      {10, &Player::cmdForward, 10.04},
      {10.039, &Player::cmdRewind, 10},
      {10.0000000001, &Player::cmdRewind, 10},
      {98.97, &Player::cmdForward, 99},
      {99, &Player::cmdForward, 99},
      {99.5, &Player::cmdForward, 99.5 + 0.04},  // behind the end it steps on,
      {99.97, &Player::cmdForward, 100},         // up to the movie's
      {9, &Player::cmdRewind, 9 - 0.04},
      {0.01, &Player::cmdRewind, 0},
  };
  for (const Case& row : cases) {
    tool->player.SeekTo(row.from);
    (tool->player.*row.step)();
    EXPECT_EQ(movie.position, row.to) << row.from;
  }
  EXPECT_EQ(tool->advsld.dPosition(), 10) << "only the slider clamps";
  use(ObjectKind::Video, 50, 100.01);  // the span reaches further than the movie
  ASSERT_TRUE(open());
  tool->player.SeekTo(99.99);
  tool->player.cmdForward();
  EXPECT_EQ(movie.position, 100);
  tool->advsld.UserMovesThumb(5000);
  EXPECT_EQ(movie.position, 100);
}

TEST_F(PlayerTest, TheTickFollowsTheMovieAndAJumpPausesIt) {
  use(ObjectKind::Video);
  ASSERT_TRUE(open());
  tool->player.cmdPlay();
  EXPECT_TRUE(face.timer && tool->player.bPlaying());
  movie.pass(3.2);
  tool->player.Timer1();
  EXPECT_EQ(face.timeCode, "00:00:03:05");
  EXPECT_EQ(tool->advsld.dPosition(), 3.2);
  tool->player.cmdForward();
  EXPECT_FALSE(movie.running || tool->player.bPlaying());
  EXPECT_TRUE(face.timer) << "a jump leaves the timer alone";
  tool->player.cmdStop();
  EXPECT_FALSE(face.timer);
  tool->player.cmdPlay();
  EXPECT_EQ(movie.position, 3.24) << "it goes on where it stopped";
  tool->player.ClosePlayer();
  EXPECT_EQ(movie.opened, 0);
  EXPECT_FALSE(face.timer || face.showsMovie);
}

TEST_F(PlayerTest, TextsBecomeTimes) {
  use(ObjectKind::Video);
  ASSERT_TRUE(open());
  EXPECT_DOUBLE_EQ(tool->player.TextToTime("00:59:59:12"), 3599.48);
  for (const char* bad : {"00:59:59", "00:59:xx:00"}) {
    EXPECT_THROW(tool->player.TextToTime(bad), RunTimeError) << bad;
  }
  movie.frameLength = 0;
  ASSERT_TRUE(open());
  EXPECT_THROW(tool->player.TextToTime("00:00:01:00"), RunTimeError);
}

}  // namespace
}  // namespace velra::test
