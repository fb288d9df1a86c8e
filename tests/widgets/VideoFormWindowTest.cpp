// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <QWheelEvent>

#include "shell/LoadedVideoForm.h"
#include "widgets/AccessibilityWalk.h"
#include "widgets/ToolWindowTest.h"
#include "widgets/tool/AdvancedSliderWidget.h"
#include "widgets/tool/FramelistWidget.h"

namespace velra::test {
namespace {

using VideoFormWindowTest = ToolWindowTest;

TEST_F(VideoFormWindowTest, EveryControlStandsUnderItsNameAndInView) {
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

// The scripted movie is as long as the span, so that a step is no step of the thumb.
TEST_F(VideoFormWindowTest, TheArrowsOfTheTimelineMoveByAPicture) {
  inForm([&](QWidget& window) {
    auto& advsld = find<AdvancedSliderWidget>(window, "advsld");
    advsld.setFocus();
    const struct {
      Qt::Key key;
      double then;
    } keys[] = {{Qt::Key_Left, 0},    {Qt::Key_Right, 0.04}, {Qt::Key_Up, 0.08},
                {Qt::Key_Down, 0.04}, {Qt::Key_End, 100},    {Qt::Key_Right, 100}};
    for (const auto& row : keys) {
      QTest::keyClick(&advsld, row.key);
      EXPECT_EQ(session.movie.position, row.then) << row.key;
    }
  });
}

TEST_F(VideoFormWindowTest, DraggingTheThumbSeeks) {
  inForm([&](QWidget& window) {
    auto& advsld = find<AdvancedSliderWidget>(window, "advsld");
    const int y = advsld.height() - 12;
    QTest::mousePress(&advsld, Qt::LeftButton, Qt::NoModifier, QPoint(13, y));
    QTest::mouseMove(&advsld, QPoint(advsld.width() / 2, y));
    QTest::mouseRelease(&advsld, Qt::LeftButton, Qt::NoModifier, QPoint(advsld.width() / 2, y));
    EXPECT_NEAR(session.movie.position, 50, 0.5);
  });
}

// A set's row that came when the window was there sees the keys of the tool too.
TEST_F(VideoFormWindowTest, EscEndsASelectionAndDeleteAsksWhereverTheFocusIs) {
  session.main->fields->Add(tyType::SetOfStrings, {}, "Set", StringList{}, "", false, false, false,
                            true);
  inForm([&](QWidget& window) {
    auto& advsld = find<AdvancedSliderWidget>(window, "advsld");
    QTest::mouseClick(&advsld, Qt::LeftButton, Qt::NoModifier, middle(advsld, 0));
    const auto colour = [&] { return find(window, "txtTime").palette().color(QPalette::Base); };
    const QColor ground = colour();
    press(window, "cmdSel");
    EXPECT_TRUE(QTest::qWaitFor([&] { return colour() != ground; }, 2000));
    find<QTabBar>(window, "TabStrip1").setCurrentIndex(1);
    press(find(window, "Frame1_3"), "Command1");
    QWidget& row = find(window, "Text1_1");
    row.setFocus();
    QTest::keyClick(&row, Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible()) << "Esc does not close the form";
    EXPECT_EQ(colour(), ground);
    session.ui.yesNo = {true};
    QTest::keyClick(&row, Qt::Key_Delete);
  });
  EXPECT_EQ(session.ui.takeShown(),
            std::vector<std::string>{"yes-no: " + session.app.messages.text(1101)});
  EXPECT_EQ(session.main->children.size(), 1u);
}

TEST_F(VideoFormWindowTest, TwoThousandPicturesAreCutSelectedAndScrolled) {
  session.main->SetChunk(0, 4000);
  session.movie.duration = 4000;
  for (int i = 0; i < 1998; ++i) session.main->AddSubExpression("S", 41 + i, 42 + i);
  session.ui.inputs = {"last"};
  inForm([&](QWidget& window) {
    auto& strip = find<FramelistWidget>(window, "Framelist1");
    const auto shown = [&](int part) {
      return strip.visibleRegion().boundingRect().contains(strip.partRect(part));
    };
    QTest::keyClick(&find(window, "advsld"), Qt::Key_End);
    press(window, "cmdSel");
    press(window, "cmdSel");
    ASSERT_EQ(strip.partCount(), 2001);
    EXPECT_TRUE(shown(0));
    QTest::keyClick(&strip, Qt::Key_End);
    EXPECT_TRUE(shown(2000) && strip.partSelected(2000));
    QTest::keyClick(&strip, Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_TRUE(shown(0) && strip.partSelected(1000));
    find(window, "advsld").setFocus();
    QTest::keyClick(&find(window, "advsld"), Qt::Key_Right, Qt::AltModifier);
    EXPECT_TRUE(shown(1)) << "in view, it does not scroll";
    auto& view = find<QScrollArea>(window, "StripView");
    auto& bar = *view.horizontalScrollBar();
    EXPECT_EQ(bar.value(), 0);
    QWheelEvent turn(QPointF(9, 9), window.mapToGlobal(QPointF(9, 9)), {}, {0, -240}, {}, {},
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(view.viewport(), &turn);
    EXPECT_EQ(bar.value(), 2 * strip.partRect(0).width());
    bar.setValue(bar.maximum());
    EXPECT_TRUE(shown(2000));
    session.ui.yesNo = {true};
    QTest::keyClick(window.focusWidget(), Qt::Key_Delete);
    window.resize(window.minimumSize());
    EXPECT_LT(strip.partCount(), 2001);
  });
}

TEST_F(VideoFormWindowTest, TabsOfFieldsTakeThePlaceOfTheTool) {
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

TEST_F(VideoFormWindowTest, ScreenReadersMeetNamedControlsAndEveryRange) {
  inForm([&](QWidget& window) {
    EXPECT_EQ(accessibilityFaults(window), std::vector<std::string>{});
    auto& advsld = find<AdvancedSliderWidget>(window, "advsld");
    QAccessibleInterface* timeline = QAccessible::queryAccessibleInterface(&advsld);
    EXPECT_EQ(timeline->role(), QAccessible::Slider);
    ASSERT_EQ(timeline->childCount(), 2);
    EXPECT_EQ(timeline->child(1)->text(QAccessible::Name),
              QStringLiteral("'B': From 00:00:30:00 To 00:00:40:00"));
    timeline->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(timeline->child(1)->state().selected);
    EXPECT_EQ(timeline->valueInterface()->currentValue().toDouble(), 30);
    EXPECT_EQ(timeline->text(QAccessible::Value), QStringLiteral("00:00:30:00"));
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

TEST_F(VideoFormWindowTest, TwentyThousandWordsStayFluent) {
  auto words = std::make_shared<WordColl>();
  for (int i = 0; i < 20000; ++i) words->Add("", "", i / 250.0, i / 250.0, "word");
  const auto transcript = std::make_shared<ScriptedExpression>(ObjectKind::Transcript);
  transcript->words = words;
  session.main->transcript = transcript;
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
