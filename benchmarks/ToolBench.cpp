// SPDX-License-Identifier: GPL-3.0-or-later
#include "ToolBench.h"

#include <QApplication>

#include "MeasuredTool.h"
#include "shell/LoadedVideoForm.h"
#include "widgets/tool/AdvancedSliderWidget.h"

namespace velra::bench {

namespace {

constexpr int kSegments = 1000;
constexpr int kWords = 20000;
constexpr double kMovieSeconds = 4000;
constexpr double kResizeBudget = 16;  // the surface of the whole window is made and painted anew
constexpr int kRounds = 200;

void measureTimeline(MeasuredWindow& window, std::vector<Measure>& measures) {
  auto& timeline = *window.findChild<AdvancedSliderWidget*>();
  const auto middle = [&](int part) { return timeline.partRect(part % kSegments).center(); };
  measures.push_back(painted("select one of 1,000 ranges", kRounds, [&](int round) {
    click(timeline, middle(round * 37), Qt::NoModifier);
  }));
  measures.push_back(painted("select a stretch of them", kRounds, [&](int round) {
    click(timeline, middle(round * 37), Qt::ShiftModifier);
  }));
  measures.push_back(
      painted("move the thumb", kRounds, [&](int round) { timeline.moveTo(round * 19); }));
  measures.push_back(painted(
      "resize the window", kRounds,
      [&](int round) { window.resize(MeasuredWindow::kSize - QSize(round % 50, round % 20)); },
      kResizeBudget));
}

void measureTicks(MeasuredWindow& window, test::MovieScript& movie,
                  std::vector<Measure>& measures) {
  ExpressionTool& tool = window.tool();
  tool.player.SeekTo(0);
  tool.player.cmdPlay();
  movie.pass(kMovieSeconds - 100);
  Times whole;
  whole.take([&] {
    tool.player.Timer1();
    QApplication::processEvents();
  });
  measures.push_back({"the tick that shows 19,500 words", whole.at(1), "ms", 500});
  measures.push_back(painted("a tick with one new word behind them", kRounds, [&](int) {
    movie.pass(kMovieSeconds / kWords);
    tool.player.Timer1();
  }));
  measures.push_back(painted(
      "resize the window with all words", 50,
      [&](int round) { window.resize(MeasuredWindow::kSize - QSize(10 * (round % 10), 0)); },
      kResizeBudget));
  measures.push_back(painted("jump, which empties the transcript", 50, [&](int round) {
    tool.player.SeekTo(round * 70 % 3900);
    movie.running = true;
    movie.pass(90);
    tool.player.Timer1();
  }));
}

}  // namespace

std::vector<Measure> measureTool(const std::string&) {
  MeasuredTool bench(ObjectKind::Audio, kMovieSeconds);
  const double length = kMovieSeconds / kSegments;
  for (int i = 0; i < kSegments; ++i) {
    bench.session.main->AddSubExpression("Segment " + std::to_string(i), i * length,
                                         i * length + length);
  }
  const auto words = std::make_shared<WordColl>();
  for (int i = 0; i < kWords; ++i) {
    const double start = i * kMovieSeconds / kWords;
    words->Add("", "", start, start + 0.1, i % 3 ? "word" : "syllable");
  }
  const auto transcript = std::make_shared<test::ScriptedExpression>(ObjectKind::Transcript);
  transcript->words = words;
  bench.session.main->transcript = transcript;
  std::vector<Measure> measures;
  bench.act = [&](MeasuredWindow& window) {
    measureTimeline(window, measures);
    measureTicks(window, bench.session.movie, measures);
  };
  bench.session.show();
  bench.session.main->transcript.reset();
  return measures;
}

}  // namespace velra::bench
