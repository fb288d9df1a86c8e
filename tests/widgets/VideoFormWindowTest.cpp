#include "widgets/VideoFormWindow.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTest>

#include "shell/LoadedVideoForm.h"
#include "support/ToolSession.h"
#include "widgets/AdvancedSliderWidget.h"
#include "widgets/FramelistWidget.h"
#include "widgets/ModalAnswer.h"
#include "widgets/PaintedPartsAccess.h"

namespace velra::test {
namespace {

class VideoFormWindowTest : public ::testing::Test, public VideoFormFaces {
 protected:
  VideoFormWindowTest() {
    installPaintedPartsAccess();
    auto frame = std::make_shared<PictureFrame>();
    frame->width = 4;
    frame->height = 2;
    for (int pixel = 0; pixel < 8; ++pixel) {
      const std::uint8_t right = pixel % 4 < 2 ? 0 : 255;  // red on the left, blue on the right
      for (const int byte : {int{right}, 0, 255 - right, 255}) {
        frame->pixels.push_back(static_cast<std::uint8_t>(byte));
      }
    }
    session.movie.picture = frame;
  }

  /// Shows the main expression; the person acts in its window and closes it.
  void inForm(const std::function<void(QWidget&)>& act) {
    bool ran = false;
    whenModal([&](QWidget& window) {
      ran = true;
      act(window);
      if (window.isVisible()) static_cast<QDialog&>(window).reject();
    });
    session.show();
    EXPECT_TRUE(ran);
  }
  template <class Widget = QWidget>
  static Widget& find(QWidget& window, const char* name) {
    auto* found = window.findChild<Widget*>(QLatin1String(name));
    if (!found) throw std::runtime_error(std::string("no control ") + name);
    return *found;
  }
  static void press(QWidget& window, const char* name) {
    QTest::mouseClick(&find<QPushButton>(window, name), Qt::LeftButton);
  }
  static QPoint middle(const PaintedParts& parts, int part) {
    return parts.partRect(part).center();
  }

  std::unique_ptr<VideoFormFace> makeVideoForm(FormOwner&) override {
    return std::make_unique<VideoFormWindow>(session.app, nullptr);
  }

  ToolSession session{*this};
};

TEST_F(VideoFormWindowTest, everyControlStandsUnderItsNameAndInView) {
  inForm([](QWidget& window) {
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Main"));
    for (const char* name :
         {"BackButt",       "txtTime",     "picVideoWindow", "cmdPlay",    "cmdPause",
          "cmdStop",        "cmdRewind",   "cmdForward",     "rtbTrans",   "advsld",
          "VideoFrame",     "Framelist1",  "cmdSel",         "cmdNew",     "cmdModif",
          "cmdCanc",        "cmdMerge",    "cmdPrev",        "cmdNext",    "cmdExpandLeft",
          "cmdExpandRight", "cmdKeyFrame", "OKButt",         "CancelButt", "TabStrip1"}) {
      QWidget& control = find(window, name);
      EXPECT_TRUE(control.isVisible()) << name;
      const QRect place(control.mapTo(&window, QPoint()), control.size());
      EXPECT_TRUE(window.rect().contains(place)) << name;
    }
    EXPECT_EQ(find(window, "BackButt").mapTo(&window, QPoint()), QPoint(7, 30));
    EXPECT_EQ(find(window, "picVideoWindow").size(), QSize(267, 200));
    EXPECT_EQ(find(window, "Framelist1").width(), window.width());
  });
}

TEST_F(VideoFormWindowTest, thePictureFillsItsBox) {
  inForm([](QWidget& window) {
    const QImage shown = find(window, "picVideoWindow").grab().toImage();
    EXPECT_EQ(shown.pixelColor(5, 195), QColor(Qt::red));
    EXPECT_EQ(shown.pixelColor(260, 5), QColor(Qt::blue));
  });
}

TEST_F(VideoFormWindowTest, stepsAndTheTickShowInTheTimeCode) {
  inForm([&](QWidget& window) {
    auto& txtTime = find<QLineEdit>(window, "txtTime");
    press(window, "cmdForward");
    EXPECT_EQ(txtTime.text(), QStringLiteral("00:00:00:01"));
    press(window, "cmdPlay");
    session.movie.pass(2);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return txtTime.text() == QStringLiteral("00:00:02:01"); }, 2000));
    press(window, "cmdStop");
  });
  EXPECT_EQ(session.movie.opened, 0);
}

TEST_F(VideoFormWindowTest, mouseAndKeysSelectOnTimelineAndStrip) {
  inForm([&](QWidget& window) {
    auto& advsld = find<AdvancedSliderWidget>(window, "advsld");
    auto& strip = find<FramelistWidget>(window, "Framelist1");
    QTest::mouseClick(&advsld, Qt::LeftButton, Qt::NoModifier, middle(advsld, 1));
    EXPECT_EQ(session.movie.position, 30);
    EXPECT_TRUE(strip.partSelected(1) && !strip.partSelected(0));
    QTest::mouseClick(&strip, Qt::LeftButton, Qt::ShiftModifier, middle(strip, 0));
    EXPECT_TRUE(advsld.partSelected(0) && advsld.partSelected(1));
    strip.setFocus();
    QTest::keyClick(&strip, Qt::Key_Home);
    EXPECT_EQ(session.movie.position, 10);
    advsld.setFocus();
    QTest::keyClick(&advsld, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(session.movie.position, 30);
    QTest::keyClick(&advsld, Qt::Key_End);
    EXPECT_EQ(session.movie.position, 100);
  });
}

TEST_F(VideoFormWindowTest, draggingTheThumbSeeks) {
  inForm([&](QWidget& window) {
    auto& advsld = find<AdvancedSliderWidget>(window, "advsld");
    const int y = advsld.height() - 12;
    QTest::mousePress(&advsld, Qt::LeftButton, Qt::NoModifier, QPoint(13, y));
    QTest::mouseMove(&advsld, QPoint(advsld.width() / 2, y));
    QTest::mouseRelease(&advsld, Qt::LeftButton, Qt::NoModifier, QPoint(advsld.width() / 2, y));
    EXPECT_NEAR(session.movie.position, 50, 0.5);
  });
}

TEST_F(VideoFormWindowTest, escEndsASelectionAndDeleteAsksWhereverTheFocusIs) {
  inForm([&](QWidget& window) {
    press(window, "cmdSel");
    QWidget& focused = find(window, "cmdSel");
    focused.setFocus();
    const QColor ground = find(window, "txtTime").palette().color(QPalette::Base);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return find(window, "txtTime").palette().color(QPalette::Base) != ground; }, 2000));
    QTest::keyClick(&focused, Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible()) << "Esc does not close the form";
    EXPECT_EQ(find(window, "txtTime").palette().color(QPalette::Base), ground);
    auto& advsld = find<AdvancedSliderWidget>(window, "advsld");
    QTest::mouseClick(&advsld, Qt::LeftButton, Qt::NoModifier, middle(advsld, 0));
    session.ui.yesNo = {true};
    QTest::keyClick(window.focusWidget(), Qt::Key_Delete);
  });
  EXPECT_EQ(session.ui.takeShown(),
            std::vector<std::string>{"yes-no: " + session.app.LoadResString(1101)});
  EXPECT_EQ(session.main->children.size(), 1u);
}

TEST_F(VideoFormWindowTest, doesNotBecomeTooNarrowForItsStrip) {
  for (int i = 0; i < 38; ++i) session.main->AddSubExpression("more", 41, 42);
  session.ui.inputs = {"one", "two", "three"};
  inForm([&](QWidget& window) {
    window.resize(1600, window.height());
    for (int i = 0; i < 3; ++i) {
      press(window, "cmdForward");
      press(window, "cmdSel");
      press(window, "cmdSel");
    }
    ASSERT_EQ(find<FramelistWidget>(window, "Framelist1").partCount(), 43);
    window.resize(1, window.height());
    EXPECT_GE(window.width(), (43 * 1100 + 100 - 32767) / 15);
    EXPECT_LT(window.width(), 1000);
  });
}

TEST_F(VideoFormWindowTest, theRangeDialogTakesTypedTimes) {
  session.ui.inputs = {"typed"};
  inForm([&](QWidget& window) {
    whenModal([&](QWidget& dialog) {
      EXPECT_EQ(dialog.windowTitle(), QStringLiteral("(Sub)Expression Time Constraints"));
      auto& ss1 = find<QLineEdit>(dialog, "ss1");
      QTest::keyClick(&ss1, Qt::Key_Up);
      EXPECT_EQ(ss1.text(), QStringLiteral("1"));
      ss1.setText(QStringLiteral("60"));
      EXPECT_EQ(ss1.text(), QStringLiteral("1"));
      find<QLineEdit>(dialog, "ss2").setText(QStringLiteral("5"));
      QTest::mouseClick(&find<QPushButton>(dialog, "OKButton"), Qt::LeftButton);
    });
    press(window, "cmdNew");
  });
  EXPECT_EQ(session.main->children.back()->ckGetChunk()->dStart, 1);
  EXPECT_EQ(session.main->children.back()->ckGetChunk()->dend, 5);
}

TEST_F(VideoFormWindowTest, aDoubleClickGoesIntoTheSegment) {
  std::vector<QString> titles;
  inForm([&](QWidget& window) {
    auto& advsld = find<AdvancedSliderWidget>(window, "advsld");
    whenModal([&](QWidget& child) {
      titles.push_back(child.windowTitle());
      static_cast<QDialog&>(child).reject();
    });
    QTest::mouseDClick(&advsld, Qt::LeftButton, Qt::NoModifier, middle(advsld, 1));
  });
  EXPECT_EQ(titles, std::vector<QString>{QStringLiteral("B")});
}

TEST_F(VideoFormWindowTest, tabsOfFieldsTakeThePlaceOfTheTool) {
  session.giveFields(*session.main, 12);
  inForm([&](QWidget& window) {
    auto& tabs = find<QTabBar>(window, "TabStrip1");
    ASSERT_EQ(tabs.count(), 3);
    EXPECT_FALSE(find(window, "Frame1_1").isVisible());
    tabs.setCurrentIndex(2);
    EXPECT_TRUE(find(window, "Frame1_11").isVisible());
    EXPECT_FALSE(find(window, "Frame1_10").isVisible());
    EXPECT_FALSE(find(window, "advsld").isVisible());
    tabs.setCurrentIndex(0);
    EXPECT_TRUE(find(window, "advsld").isVisible());
  });
}

void checkAccess(QAccessibleInterface& access) {
  if (access.state().focusable && access.role() != QAccessible::ComboBox) {
    EXPECT_FALSE(access.text(QAccessible::Name).isEmpty())
        << (access.object() ? access.object()->objectName().toStdString() : "a part");
  }
  EXPECT_FALSE(access.role() == QAccessible::Client && access.state().focused);
  for (int i = 0; i < access.childCount(); ++i) {
    if (QAccessibleInterface* child = access.child(i)) checkAccess(*child);
  }
}

TEST_F(VideoFormWindowTest, screenReadersMeetNamedControlsAndEveryRange) {
  inForm([&](QWidget& window) {
    checkAccess(*QAccessible::queryAccessibleInterface(&window));
    auto& advsld = find<AdvancedSliderWidget>(window, "advsld");
    QAccessibleInterface* timeline = QAccessible::queryAccessibleInterface(&advsld);
    EXPECT_EQ(timeline->role(), QAccessible::Slider);
    ASSERT_EQ(timeline->childCount(), 2);
    EXPECT_EQ(timeline->child(1)->text(QAccessible::Name),
              QStringLiteral("'B': From 00:00:30:00 To 00:00:40:00"));
    timeline->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(timeline->child(1)->state().selected);
    EXPECT_EQ(timeline->valueInterface()->currentValue().toDouble(), 30);
    QAccessibleInterface* strip =
        QAccessible::queryAccessibleInterface(&find(window, "Framelist1"));
    EXPECT_TRUE(strip->child(1)->state().selected);
    QAccessibleInterface* last = timeline->child(1);
    session.ui.yesNo = {true};
    press(window, "cmdCanc");
    EXPECT_EQ(timeline->childCount(), 1);
    EXPECT_FALSE(last->isValid());
  });
}

TEST_F(VideoFormWindowTest, twentyThousandWordsStayFluent) {
  auto words = std::make_shared<WordColl>();
  for (int i = 0; i < 20000; ++i) words->Add("", "", i / 250.0, i / 250.0, "word");
  session.main->transcript = session.main;
  session.main->words = words;
  inForm([&](QWidget& window) {
    auto& rtbTrans = find<QPlainTextEdit>(window, "rtbTrans");
    press(window, "cmdPlay");
    session.movie.pass(79.9);
    EXPECT_TRUE(QTest::qWaitFor([&] { return rtbTrans.toPlainText().size() > 90000; }, 5000));
    press(window, "cmdPause");
    EXPECT_TRUE(rtbTrans.toPlainText().startsWith(QStringLiteral(" word")));
  });
  session.main->transcript.reset();
}

}  // namespace
}  // namespace velra::test
