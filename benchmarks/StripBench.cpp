// SPDX-License-Identifier: GPL-3.0-or-later
#include "StripBench.h"

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <filesystem>

#include "MeasuredTool.h"
#include "shell/LoadedVideoForm.h"
#include "widgets/tool/AdvancedSliderWidget.h"
#include "widgets/tool/FramelistWidget.h"

namespace velra::bench {

namespace {

namespace fs = std::filesystem;

constexpr int kPictures = 2000;
constexpr double kLength = 10;  // of a segment, seconds
constexpr int kRounds = 200;
constexpr double kOpenBudget = 150;  // milliseconds
constexpr double kCutBudget = 16;

/// One picture in a file of standard television's size, and as many names of it as are asked for:
/// two thousand such files would be more than a disk should be asked to hold.
class Pictures {
 public:
  explicit Pictures(const std::string& folder) : folder_(folder + "/strip") {
    fs::remove_all(folder_);
    fs::create_directories(folder_);
    QImage image(704, 576, QImage::Format_RGB888);
    image.fill(Qt::darkCyan);
    image.save(QString::fromStdString(folder_ + "/key frame.bmp"));
  }
  ~Pictures() { fs::remove_all(folder_); }
  Pictures(const Pictures&) = delete;
  Pictures& operator=(const Pictures&) = delete;

  std::string next() {
    const std::string name = folder_ + "/" + std::to_string(++count_) + ".bmp";
    fs::create_hard_link(folder_ + "/key frame.bmp", name);
    return name;
  }

 private:
  std::string folder_;
  int count_ = 0;
};

void strike(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QKeyEvent event(QEvent::KeyPress, key, modifiers);
  QApplication::sendEvent(&widget, &event);
}

void addSegments(test::ScriptedExpression& main, Pictures& pictures) {
  for (int i = 0; i < kPictures; ++i) {
    // Linked by hand: a look for the neighbours of each is more than the tool itself does.
    const auto segment =
        test::ScriptedExpression::make(ObjectKind::Video, i * kLength, (i + 1) * kLength);
    segment->title = "Segment " + std::to_string(i);
    segment->keyFrame.path = pictures.next();
    if (i > 0) main.children.back()->setObjFollowedBy(segment);
    main.children.push_back(segment);
  }
}

void measureScrolling(QWidget& strip, QScrollBar& bar, std::vector<Measure>& measures) {
  const int page = bar.pageStep();
  measures.push_back(painted("scroll by a page, pictures not read yet", kRounds,
                             [&](int round) { bar.setValue(round % 90 * page); }));
  for (int wait = 0; wait < kRounds; ++wait) QApplication::processEvents();
  measures.push_back(painted("scroll by a quarter of a picture", kRounds, [&](int round) {
    bar.setValue(bar.maximum() / 2 + round * bar.singleStep());
  }));
  measures.push_back(
      painted("go along by the arrow key", kRounds, [&](int) { strike(strip, Qt::Key_Right); }));
}

void measureSelecting(FramelistWidget& strip, AdvancedSliderWidget& timeline, QScrollBar& bar,
                      std::vector<Measure>& measures) {
  measures.push_back(painted("select one of 2,000 pictures", kRounds, [&](int round) {
    bar.setValue(0);
    click(strip, strip.partRect(round % 20).center(), Qt::NoModifier);
  }));
  measures.push_back(painted("select a stretch from end to end", kRounds, [&](int round) {
    strike(strip, round % 2 ? Qt::Key_Home : Qt::Key_End);
    strike(strip, round % 2 ? Qt::Key_End : Qt::Key_Home, Qt::ShiftModifier);
  }));
  measures.push_back(painted("select a range of the timeline", kRounds, [&](int round) {
    click(timeline, timeline.partRect(round * 37 % kPictures).center(), Qt::NoModifier);
  }));
}

void measureCutting(MeasuredWindow& window, test::ToolSession& session,
                    std::vector<Measure>& measures) {
  constexpr int kCuts = 20;
  session.ui.inputs.assign(kCuts, "new");
  session.ui.yesNo.assign(kCuts, true);
  measures.push_back(painted(
      "cut a segment at the end", kCuts,
      [&](int round) {
        window.tool().player.SeekTo(kPictures * kLength + round);
        window.tool().segments.SelectSegmentPoint();
        window.tool().player.SeekTo(kPictures * kLength + round + 1);
        window.tool().segments.SelectSegmentPoint();
      },
      kCutBudget));
  measures.push_back(painted(
      "remove one", kCuts,
      [&](int round) {
        window.tool().Framelist1.MouseDown(static_cast<std::int16_t>(1 + round * 50), 0);
        window.tool().segments.ConfirmRemoveSegments();
      },
      kCutBudget));
}

}  // namespace

std::vector<Measure> measureStrip(const std::string& folder) {
  MeasuredTool bench(ObjectKind::Video, (kPictures + 100) * kLength);
  Pictures pictures(folder);
  addSegments(*bench.session.main, pictures);
  std::vector<Measure> measures;
  Times opening;
  bench.act = [&](MeasuredWindow&) {};
  for (int round = 0; round < 3; ++round) opening.takeWork([&] { bench.session.show(); });
  measures.push_back({"open the tool, and close it", opening.at(0.5), "ms", kOpenBudget});
  bench.act = [&](MeasuredWindow& window) {
    auto& strip = *window.findChild<FramelistWidget*>();
    auto& timeline = *window.findChild<AdvancedSliderWidget*>();
    auto& bar = *window.findChild<QScrollArea*>("StripView")->horizontalScrollBar();
    measureScrolling(strip, bar, measures);
    measureSelecting(strip, timeline, bar, measures);
    measureCutting(window, bench.session, measures);
  };
  bench.session.show();
  return measures;
}

}  // namespace velra::bench
