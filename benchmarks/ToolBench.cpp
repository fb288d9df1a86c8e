#include "ToolBench.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QScrollBar>
#include <cstdlib>

#include "shell/LoadedVideoForm.h"
#include "support/ToolSession.h"
#include "widgets/AdvancedSliderWidget.h"
#include "widgets/FramelistWidget.h"
#include "widgets/VideoFormWindow.h"

namespace velra::bench {

namespace {

constexpr int kSegments = 1000;
constexpr int kWords = 20000;
constexpr int kPictures = 40;
constexpr double kMovieSeconds = 4000;
constexpr double kBudget = 8;         // milliseconds: half of a frame
constexpr double kResizeBudget = 16;  // the surface of the whole window is made and painted anew
constexpr int kRounds = 200;
constexpr QSize kWindow(1600, 700);

/// The tool's window. In place of waiting for a person it runs what is measured.
class MeasuredWindow : public VideoFormWindow {
 public:
  using Act = std::function<void(MeasuredWindow&)>;

  MeasuredWindow(const ApplicationModule& app, Act act)
      : VideoFormWindow(app, nullptr), act_(std::move(act)) {}

  void build(LoadedVideoForm& form) override {
    form_ = &form;
    VideoFormWindow::build(form);
  }
  void showModally() override {
    resize(kWindow);
    show();
    QApplication::processEvents();
    act_(*this);
  }
  ExpressionTool& tool() { return form_->tool(); }

 private:
  Act act_;
  LoadedVideoForm* form_ = nullptr;
};

class ToolBench : public VideoFormFaces {
 public:
  explicit ToolBench(const std::string& className) : session(*this, className) {
    session.main->children.clear();
    session.main->SetChunk(0, kMovieSeconds);
    session.movie.duration = kMovieSeconds;
  }
  std::unique_ptr<VideoFormFace> makeVideoForm(FormOwner&) override {
    return std::make_unique<MeasuredWindow>(session.app, act);
  }

  test::ToolSession session;
  MeasuredWindow::Act act;
};

void click(QWidget& widget, const QPoint& place, Qt::KeyboardModifiers modifiers) {
  for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, place, widget.mapToGlobal(place), Qt::LeftButton, Qt::LeftButton,
                      modifiers);
    QApplication::sendEvent(&widget, &event);
  }
}

/// The p95 of an action together with the painting that it asks for.
Measure painted(const std::string& name, int rounds, const std::function<void(int)>& action,
                double budget = kBudget) {
  Times times;
  for (int round = 0; round < rounds; ++round) {
    times.take([&] {
      action(round);
      QApplication::processEvents();
    });
  }
  return {name + ", p95", times.p95(), "ms", budget};
}

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
      [&](int round) { window.resize(kWindow - QSize(round % 50, round % 20)); }, kResizeBudget));
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
      [&](int round) { window.resize(kWindow - QSize(10 * (round % 10), 0)); }, kResizeBudget));
  measures.push_back(painted("jump, which empties the transcript", 50, [&](int round) {
    tool.player.SeekTo(round * 70 % 3900);
    movie.running = true;
    movie.pass(90);
    tool.player.Timer1();
  }));
}

std::vector<Measure> measureAudio() {
  ToolBench bench("Audio");
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
  bench.session.main->transcript = bench.session.main;
  bench.session.main->words = words;
  std::vector<Measure> measures;
  bench.act = [&](MeasuredWindow& window) {
    measureTimeline(window, measures);
    measureTicks(window, bench.session.movie, measures);
  };
  bench.session.show();
  bench.session.main->transcript.reset();
  return measures;
}

std::vector<Measure> measureStrip(const std::string& folder) {
  ToolBench bench("Video");
  const std::string picture = folder + "/key frame.bmp";
  QImage image(704, 576, QImage::Format_RGB888);
  image.fill(Qt::darkCyan);
  image.save(QString::fromStdString(picture));
  for (int i = 0; i < kPictures; ++i) {
    bench.session.main->AddSubExpression("Segment", i * 10, i * 10 + 10);
    bench.session.main->child(static_cast<std::size_t>(i) + 1)->keyFrame.path = picture;
  }
  std::vector<Measure> measures;
  bench.act = [&](MeasuredWindow& window) {
    auto& strip = *window.findChild<FramelistWidget*>();
    auto& bar = *strip.findChild<QScrollBar*>();
    measures.push_back(painted("scroll the strip of 40 pictures", kRounds, [&](int round) {
      bar.setValue(round * 997 % (bar.maximum() + 1));
    }));
    measures.push_back(painted("select a stretch on it", kRounds, [&](int round) {
      strip.pressPart(round % kPictures);
      strip.pressPart(0);
    }));
  };
  bench.session.show();
  return measures;
}

}  // namespace

std::vector<Measure> measureTool(const std::string& folder) {
  std::vector<Measure> measures = measureAudio();
  for (const Measure& measure : measureStrip(folder)) measures.push_back(measure);
  return measures;
}

}  // namespace velra::bench
