// SPDX-License-Identifier: GPL-3.0-or-later

// The pictures carry their numbers. What counts is what the tool's window has painted.
#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <cmath>

#include "support/NumberedMovie.h"
#include "support/ToolSession.h"
#include "widgets/ModalAnswer.h"
#include "widgets/tool/VideoFormWindow.h"

namespace velra::test {
namespace {

int numberPainted(QWidget& picture) {
  const QImage image = picture.grab().toImage().convertToFormat(QImage::Format_RGB32);
  PictureFrame frame;
  frame.width = image.width();
  frame.height = image.height();
  frame.pixels.assign(image.constBits(), image.constBits() + image.sizeInBytes());
  return numberIn(frame);
}

/// The time code of a picture, by whole numbers alone.
QString timeCodeOf(const NumberedMovie& movie, int picture) {
  const int second = picture * movie.rateDenominator / movie.rateNumerator;
  const int rest = picture * movie.rateDenominator - second * movie.rateNumerator;
  return QStringLiteral("00:00:%1:%2")
      .arg(second, 2, 10, QLatin1Char('0'))
      .arg(rest / movie.rateDenominator, 2, 10, QLatin1Char('0'));
}

class PaintedPictures : public ::testing::TestWithParam<NumberedMovie>, public VideoFormFaces {
 protected:
  PaintedPictures() {
    session_.services.makeGraph = makeMediaGraph;
    session_.main->movie = movie_.path();
    session_.main->children.clear();
    session_.main->SetChunk(0, movie_.pictures * movie_.frameTime());
  }
  std::unique_ptr<VideoFormFace> makeVideoForm(FormOwner&) override {
    return std::make_unique<VideoFormWindow>(session_.app, nullptr);
  }
  void inTool(const std::function<void()>& act) {
    whenModal([&](QWidget& window) {
      window_ = &window;
      act();
      static_cast<QDialog&>(window).reject();
    });
    session_.show();
  }
  void press(const char* name) {
    QTest::mouseClick(window_->findChild<QPushButton*>(QLatin1String(name)), Qt::LeftButton);
  }
  void expectPainted(int picture) {
    auto& box = *window_->findChild<QWidget*>(QStringLiteral("picVideoWindow"));
    QTimer wake;
    wake.start(2);
    const QDeadlineTimer stop(10000);
    while (numberPainted(box) != picture && !stop.hasExpired()) {
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    ASSERT_EQ(numberPainted(box), picture);
    ASSERT_EQ(window_->findChild<QLineEdit*>(QStringLiteral("txtTime"))->text(),
              timeCodeOf(movie_, picture));
  }

  const NumberedMovie& movie_ = GetParam();
  ToolSession session_{*this};
  QWidget* window_ = nullptr;
};

TEST_P(PaintedPictures, FollowEveryStepForwardAndBack) {
  inTool([&] {
    expectPainted(0);
    for (int picture = 1; picture < movie_.pictures && !HasFatalFailure(); ++picture) {
      press("cmdForward");
      expectPainted(picture);
    }
    for (int picture = movie_.pictures - 2; picture >= 0 && !HasFatalFailure(); --picture) {
      press("cmdRewind");
      expectPainted(picture);
    }
  });
}

// The bounds of segments as the tool makes them, and as files keep them in whole milliseconds.
TEST_P(PaintedPictures, StandAtTheBoundsOfSegments) {
  std::vector<int> bounds;
  const int distance = movie_.pictures / 30;
  for (int picture = 3; picture < movie_.pictures - 5; picture += distance) {
    const auto bound = [&](int k) {
      bounds.push_back(k);
      const double seconds = k / movie_.rate();
      return bounds.size() % 4 < 2 ? seconds : std::round(seconds * 1000) / 1000;
    };
    const double start = bound(picture);
    session_.main->AddSubExpression("Segment", start, bound(picture + 2));
  }
  inTool([&] {
    for (auto at = bounds.begin(); at != bounds.end() && !HasFatalFailure(); ++at) {
      press("cmdNext");
      expectPainted(*at);
    }
    for (auto at = bounds.rbegin() + 1; at != bounds.rend() && !HasFatalFailure(); ++at) {
      press("cmdPrev");
      expectPainted(*at);
    }
  });
}

INSTANTIATE_TEST_SUITE_P(Movies, PaintedPictures, ::testing::ValuesIn(numberedMovies()));

}  // namespace
}  // namespace velra::test
