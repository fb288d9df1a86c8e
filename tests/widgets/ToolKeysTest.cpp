// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/keys/ToolKeys.h"

#include <QClipboard>
#include <QPlainTextEdit>
#include <QTabBar>

#include "widgets/ToolWindowTest.h"
#include "widgets/tool/AdvancedSliderWidget.h"

namespace velra::test {
namespace {

using ToolKeys = ToolWindowTest;

// Two segments, from 10 to 20 and from 30 to 40 seconds.
TEST_F(ToolKeys, PlayStepAndCutWhereverTheFocusIs) {
  constexpr auto kPlain = Qt::NoModifier;
  constexpr auto kShift = Qt::ShiftModifier;
  constexpr auto kCtrl = Qt::ControlModifier;
  const struct {
    const char* focus;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* then;  // position, whether the movie runs, and what was shown
  } strokes[] = {
      {"advsld", Qt::Key_Right, kPlain, "0.04"},
      {"cmdNew", Qt::Key_Right, kShift, "0.44"},
      {"cmdPlay", Qt::Key_Left, kPlain, "0.4"},
      {"rtbTrans", Qt::Key_Left, kPlain, "0.4"},  // its own
      {"txtTime", Qt::Key_Right, kCtrl, "0.4"},
      {"advsld", Qt::Key_Left, kShift, "0"},
      {"Framelist1", Qt::Key_Right, kPlain, "10"},  // selects the first picture
      {"Framelist1", Qt::Key_Right, kCtrl, "20"},
      {"advsld", Qt::Key_Right, kCtrl, "30"},
      {"cmdPlay", Qt::Key_Left, kCtrl, "20"},
      {"cmdPlay", Qt::Key_Space, kPlain, "20 runs"},
      {"rtbTrans", Qt::Key_Space, kPlain, "20"},
      {"TabStrip1", Qt::Key_Space, kPlain, "20 runs"},
      {"cmdStop", Qt::Key_Space, kPlain, "20"},  // pressed
      {"advsld", Qt::Key_Left, kPlain, "19.96"},
      {"advsld", Qt::Key_O, kPlain, "19.96 beep"},
      {"advsld", Qt::Key_I, kPlain, "19.96 plain: 1118"},
      {"advsld", Qt::Key_Right, kPlain, "20"},
      {"txtTime", Qt::Key_I, kPlain, "20"},
      {"advsld", Qt::Key_Right, kPlain, "20.04"},
      {"advsld", Qt::Key_I, kPlain, "20.04"},  // the point moves
      {"advsld", Qt::Key_Right, kCtrl, "30"},
      {"rtbTrans", Qt::Key_O, kPlain, "30 input: 1103 | 1104"},
      {"cmdNew", Qt::Key_K, kPlain, "30 yes-no: 1176"},
      {"advsld", Qt::Key_C, kCtrl, "30"},
      {"advsld", Qt::Key_G, kCtrl, "50.48 input: 1228 | 1227"},
      {"txtTime", Qt::Key_G, kCtrl, "100 input: 1228 | 1227, plain: 1229x:1, input: 1228 | 1227"},
      {"advsld", Qt::Key_G, kCtrl, "100 input: 1228 | 1227"},
  };
  session.ui.inputs = {"New", "50:12", "x:1", "9:0:0:0", ""};
  inForm([&](QWidget& window) {
    for (const auto& stroke : strokes) {
      QWidget& focus = find(window, stroke.focus);
      focus.setFocus();
      QTest::keyClick(&focus, stroke.key, stroke.modifiers);
      QString then = QString::number(session.movie.position, 'g', 6);
      if (session.movie.running) then += QStringLiteral(" runs");
      QStringList shown;
      for (const std::string& text : session.ui.takeShown()) shown << QString::fromStdString(text);
      if (!shown.isEmpty()) then += QLatin1Char(' ') + shown.join(QStringLiteral(", "));
      for (const int id : {1118, 1103, 1104, 1176, 1227, 1228, 1229}) {
        then.replace(QString::fromStdString(session.app.messages.text(id)), QString::number(id));
      }
      EXPECT_EQ(then, QLatin1String(stroke.then)) << stroke.focus << " " << stroke.key;
    }
  });
  EXPECT_EQ(session.main->child(3)->ckGetChunk()->dStart, 20.04);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("00:00:30:00"));
}

TEST_F(ToolKeys, BelongToABoxThatIsTypedIntoAndToATextThatIsCopied) {
  session.giveFields(*session.main, 2);
  session.main->fields->Add(tyType::String, {}, "Note", std::string("a"), "", false, false, false,
                            true);
  inForm([&](QWidget& window) {
    auto& words = find<QPlainTextEdit>(window, "rtbTrans");
    words.setPlainText(QStringLiteral("spoken"));
    words.selectAll();
    words.setFocus();
    QTest::keyClick(&words, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("spoken"));
    find<QTabBar>(window, "TabStrip1").setCurrentIndex(1);
    auto& box = *find(window, "Frame1_1").findChild<QPlainTextEdit*>();
    box.setFocus();
    QTest::keyClicks(&box, QStringLiteral("kio "));
    QTest::keyClick(&box, Qt::Key_Left, Qt::ShiftModifier);
    QTest::keyClick(window.findChild<QWidget*>(QStringLiteral("OKButt")), Qt::Key_I);
    EXPECT_TRUE(box.toPlainText().contains(QStringLiteral("kio ")));
  });
  EXPECT_EQ(session.movie.position, 0);
  EXPECT_EQ(session.ui.takeShown(), std::vector<std::string>{});
}

// Half red and half blue, and three times as wide as it is high.
std::shared_ptr<const PictureFrame> flag() {
  auto frame = std::make_shared<PictureFrame>(PictureFrame{60, 20, {}});
  for (int at = 0; at < 60 * 20; ++at) {
    const bool red = at % 60 < 30;
    for (const int part : {red ? 0 : 255, 0, red ? 255 : 0, 255}) {
      frame->pixels.push_back(static_cast<std::uint8_t>(part));
    }
  }
  return frame;
}

TEST_F(ToolKeys, ThePictureIsShownLargeWithTheSameKeys) {
  session.movie.picture = flag();
  inForm([&](QWidget& window) {
    auto& small = find(window, "picVideoWindow");
    const QImage before = small.grab().toImage();
    auto& large = find(window, "LargePicture");
    EXPECT_FALSE(large.isVisible());
    QTest::keyClick(window.focusWidget(), Qt::Key_F11);
    ASSERT_TRUE(large.isVisible());
    large.resize(300, 300);
    const QImage shown = large.grab().toImage();
    const struct {
      QPoint place;
      Qt::GlobalColor colour;
    } pixels[] = {{{20, 150}, Qt::red}, {{280, 150}, Qt::blue}, {{150, 80}, Qt::black}};
    for (const auto& row : pixels) EXPECT_EQ(shown.pixelColor(row.place), QColor(row.colour));
    QTest::keyClick(&large, Qt::Key_F11);
    EXPECT_TRUE(large.isFullScreen());
    QTest::keyClick(&large, Qt::Key_F11);
    EXPECT_FALSE(large.isFullScreen());
    QTest::keyClick(&large, Qt::Key_I);
    QTest::keyClick(&large, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(session.movie.position, 10);
    QTest::keyRelease(&large, Qt::Key_Escape);  // of a press that has closed a box
    EXPECT_TRUE(large.isVisible());
    QTest::keyClick(&large, Qt::Key_Escape);
    EXPECT_FALSE(large.isVisible());
    QTest::mouseDClick(&small, Qt::LeftButton);
    EXPECT_TRUE(large.isVisible());
    EXPECT_EQ(small.grab().toImage(), before);
    session.ui.inputs = {"cut"};  // the point that I took still waits
    QTest::keyClick(&large, Qt::Key_O);
  });
  EXPECT_EQ(session.main->children.size(), 3U);
}

// The third has no room, and the fourth begins within the second.
TEST_F(ToolKeys, TitlesStandInTheRangesThatHaveRoom) {
  session.main->AddSubExpression("CCCCCCCC", 50, 50.5);
  session.main->AddSubExpression("BBBB", 30.5, 40);
  session.main->child(1)->title = "A title that is much longer than its range has room for";
  inForm([&](QWidget& window) {
    auto& advsld = find<AdvancedSliderWidget>(window, "advsld");
    const QImage image = advsld.grab().toImage();
    const auto darkPixels = [&](const QRect& place) {
      int count = 0;
      for (int at = 0; at < place.width() * place.height(); ++at) {
        const QPoint pixel(at % place.width(), at / place.width());
        count += image.pixelColor(place.topLeft() + pixel).lightness() < 90;
      }
      return count;
    };
    const auto inside = [&](int part) { return advsld.partRect(part).adjusted(3, 3, -3, -8); };
    EXPECT_GT(darkPixels(inside(0)), 0);
    EXPECT_GT(darkPixels(inside(3)), 0);
    EXPECT_EQ(darkPixels(inside(2)), 0);
    EXPECT_EQ(darkPixels(inside(0).translated(inside(0).width() + 6, 0)), 0);
  });
}

}  // namespace
}  // namespace velra::test
