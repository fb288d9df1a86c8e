// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/GeneratedFormFace.h"

#include <QGroupBox>
#include <QPushButton>

#include "widgets/AccessibilityWalk.h"
#include "widgets/FormWindowTest.h"

namespace velra {
namespace {

using test::FormWindowTest;

class GeneratedFormTest : public FormWindowTest {};

TEST_F(GeneratedFormTest, AnObjectWithoutFieldsHasOneEmptyTab) {
  open();
  auto& tabs = find<QTabBar>("TabStrip1");
  EXPECT_EQ(tabs.count(), 1);
  EXPECT_EQ(tabs.tabText(0), QStringLiteral("Set 1"));
  EXPECT_TRUE(panel().findChildren<QGroupBox*>().isEmpty());
  QTest::mouseClick(&find("OKButt"), Qt::LeftButton);
  EXPECT_FALSE(window_->isVisible());
}

TEST_F(GeneratedFormTest, AllSetsStandInTheSameSlotsUntilATabIsClicked) {
  addTexts(12);
  open();
  EXPECT_EQ(find<QTabBar>("TabStrip1").tabText(1), QStringLiteral("Set 2"));
  EXPECT_EQ(find("Frame1_11").geometry(), find("Frame1_1").geometry());
  EXPECT_TRUE(find("Text1_1").isVisible());
  const QPoint inFirstSlot = find("Frame1_1").geometry().center();
  EXPECT_TRUE(find("Frame1_11").isAncestorOf(panel().childAt(inFirstSlot)));
  clickTab(1);
  EXPECT_TRUE(find("Text1_1").isVisible());
  EXPECT_TRUE(find("Text1_10").isVisible());
  EXPECT_FALSE(find("Text1_11").isVisible());
  clickTab(2);
  EXPECT_FALSE(find("Text1_1").isVisible());
  EXPECT_TRUE(find("Text1_12").isVisible());
}

TEST_F(GeneratedFormTest, TheTabKeyGoesToWhatIsInSightAndTabsTakeItAlong) {
  addTexts(12);
  open();
  const auto focused = [&] { return window_->focusWidget()->objectName(); };
  const auto round = [&] {  // once around by the Tab key
    QStringList names;
    for (const QString start = focused(); names.size() < 30 && !names.contains(start);) {
      QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
      names << focused();
      const QWidget& view = find("Picture2");
      const QWidget& box = *window_->focusWidget();
      if (!panel().isAncestorOf(&box)) continue;
      EXPECT_TRUE(view.rect().contains(QRect(box.mapTo(&view, QPoint()), box.size())));
    }
    return names.join(u' ');
  };
  EXPECT_EQ(round(),
            QStringLiteral("Text1_12 Text1_3 Text1_4 Text1_5 Text1_6 Text1_7 Text1_8 Text1_9 "
                           "Text1_10 OKButt CancelButt TabStrip1 Text1_11"));
  const auto turn = [&](Qt::Key key) {
    QTest::keyClick(window_->focusWidget(), key, Qt::ControlModifier);
    return focused();
  };
  bar().setValue(1400);  // past the first box
  EXPECT_EQ(turn(Qt::Key_PageDown), QStringLiteral("Text1_11"));
  EXPECT_EQ(turn(Qt::Key_PageUp), QStringLiteral("Text1_2"));
  EXPECT_EQ(bar().value(), 1400);
  find("OKButt").setFocus();
  clickTab(2);
  EXPECT_EQ(focused(), QStringLiteral("Text1_11"));
  find("Text1_12").setFocus();
  clickTab(2);  // the one in front
  EXPECT_EQ(focused(), QStringLiteral("Text1_12"));
  find("TabStrip1").setFocus();
  QTest::keyClick(&find("TabStrip1"), Qt::Key_Left);
  EXPECT_EQ(focused(), QStringLiteral("TabStrip1"));
}

TEST_F(GeneratedFormTest, ALargeFontIsWholeInTabsRowsAndButtons) {
  object_->add(tyType::SetOfStrings, "Set", StringList{"row"});
  addTexts(8);
  const QFont before = QApplication::font();
  for (const int points : {9, 18, 28}) {
    QFont font = before;
    font.setPointSize(points);
    QApplication::setFont(font);
    open();
    QWidget& set = find("ctlSetOfString1_1");
    const int text = window_->fontMetrics().height();
    EXPECT_GE(find("Text1_1", &set).height(), text) << points;
    for (const char* name : {"Command1", "Command2", "OKButt"}) {
      const auto& button = find<QPushButton>(name, name[0] == 'C' ? &set : nullptr);
      EXPECT_GE(button.height(), text) << points << name;
      EXPECT_GT(button.width(), button.fontMetrics().horizontalAdvance(button.text())) << points;
    }
    const auto& tabs = find<QTabBar>("TabStrip1");
    EXPECT_GE(tabs.height(), (tabs.sizeHint().height() + text) / 2) << points;
    EXPECT_EQ(find("Picture2").y(), tabs.height());
    EXPECT_GE(find("Frame1_2").y(), find("Frame1_1").geometry().bottom()) << points;
    EXPECT_LE(find("OKButt").geometry().bottom(), window_->height()) << points;
    bar().setValue(bar().maximum());
    EXPECT_LE(find("Frame1_9").mapTo(&find("Picture2"), QPoint()).y() + find("Frame1_9").height(),
              find("Picture2").height());
    if (points == 9) {
      EXPECT_EQ(tabs.height(), 27);
      EXPECT_EQ(find("Text1_1", &set).size(), QSize(267, 20));
    }
    window_.reset();
  }
  QApplication::setFont(before);
}

TEST_F(GeneratedFormTest, TabsKeepTheirScroll) {
  addTexts(25);
  open();
  bar().setValue(2000);
  EXPECT_EQ(panel().y(), -133);
  clickTab(2);
  EXPECT_EQ(panel().y(), 0);
  EXPECT_EQ(bar().value(), 0);
  bar().setValue(300);
  clickTab(1);
  EXPECT_EQ(panel().y(), -133);
  EXPECT_EQ(bar().value(), 2000);
  open();  // the same object's form, built anew
  EXPECT_EQ(panel().y(), -133);
}

TEST_F(GeneratedFormTest, TheWheelStopsAtBothEnds) {
  addTexts(10);
  open();
  wheel(panel(), -120);
  EXPECT_EQ(bar().value(), 100);
  EXPECT_EQ(panel().y(), -7);
  wheel(panel(), 240);
  wheel(panel(), 120);
  EXPECT_EQ(bar().value(), 0);
  for (int i = 0; i < 100; ++i) wheel(panel(), -120);
  EXPECT_EQ(bar().value(), bar().maximum());
  EXPECT_NEAR(panel().geometry().bottom() + 1, find("Picture2").height(), 1);  // rounded
}

TEST_F(GeneratedFormTest, TheWheelOverAControlMovesTheForm) {
  object_->shared.collCloseListTypes.Add({"Colours", {"red", "blue"}});
  object_->add(tyType::CloseList, "Colour", "red", "Colours");
  object_->add(tyType::Date, "Day", Date{2001, 1, 1});
  addTexts(8);
  open();
  for (const char* name : {"Combo1_1", "DTPicker1_1", "Text1_1"}) {
    bar().setValue(0);
    find(name).setFocus();
    wheel(*find("Picture1").childAt(find(name).mapTo(&panel(), QPoint(20, 8))), -120);
    EXPECT_EQ(bar().value(), 100) << name;
  }
  form_->OKButt_Click();
  EXPECT_EQ(stored(1), Value("red"));
  EXPECT_EQ(stored(2), Value(Date{2001, 1, 1}));
}

TEST_F(GeneratedFormTest, BarsComeAndGoWithTheSize) {
  addTexts(10);
  open();
  EXPECT_TRUE(bar().isVisible());
  EXPECT_FALSE(find("HScroll1").isVisible());
  bar().setValue(bar().maximum());
  window_->resize(400, 1000);
  EXPECT_FALSE(bar().isVisible());
  EXPECT_EQ(panel().y() >= 0, true);
  auto& across = find<QScrollBar>("HScroll1");
  EXPECT_TRUE(across.isVisible());
  across.setValue(across.maximum());
  // The right edge of the boxes comes into view.
  EXPECT_LE(find("Frame1_1").mapTo(window_.get(), QPoint(500, 0)).x(), window_->width());
  const QRect before = find("Picture2").geometry();
  window_->resize(10, 60);  // too small for anything
  EXPECT_EQ(find("Picture2").geometry(), before);
}

TEST_F(GeneratedFormTest, KeysThatEndTheForm) {
  struct Row {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    bool ends;
    std::string stored;
  };
  const Row rows[] = {{Qt::Key_Return, Qt::NoModifier, false, "old"},
                      {Qt::Key_Escape, Qt::NoModifier, true, "old"},
                      {Qt::Key_Return, Qt::ControlModifier, true, "newold"}};
  object_->add(tyType::String, "Format", "old");
  for (const Row& row : rows) {
    open();
    QTest::keyClicks(window_->focusWidget(), QStringLiteral("new"));
    QTest::keyClick(window_->focusWidget(), row.key, row.modifiers);
    EXPECT_EQ(window_->isVisible(), !row.ends);
    EXPECT_EQ(stored(1), Value(row.stored));
  }
}

TEST_F(GeneratedFormTest, CaptionsAndToolTips) {
  object_->add(tyType::String, "Format", "a [*] <b>title</b>").setStrComment("x <b>y</b>");
  open();
  EXPECT_EQ(window_->objectName(), QStringLiteral("MediaForm"));
  EXPECT_EQ(window_->windowTitle(), QStringLiteral("a [*][*] <b>title</b>"));
  EXPECT_EQ(find<QGroupBox>("Frame1_1").title(), QStringLiteral("Format"));
  EXPECT_TRUE(find("Text1_1").toolTip().contains(QStringLiteral("&lt;b&gt;")));
  EXPECT_EQ(find<QPushButton>("OKButt").text(), QStringLiteral("OK"));
  EXPECT_EQ(find<QPushButton>("CancelButt").text(), QStringLiteral("Cancel"));
}

TEST_F(GeneratedFormTest, EveryControlCanBeHeardAndFound) {
  object_->shared.collCloseListTypes.Add({"Colours", {"red", "blue"}});
  for (int i = 0; i < 2; ++i) {
    const std::string number = std::to_string(i);
    object_->add(tyType::String, "Text" + number, "same");
    object_->add(tyType::Bool, "Truth" + number, true);
    object_->add(tyType::Date, "Day" + number, Date{});
    object_->add(tyType::CloseList, "Colour" + number, "red", "Colours");
    object_->add(tyType::SetOfStrings, "Set" + number, StringList{"same", "same"});
  }
  open();
  clickTab(1);
  EXPECT_EQ(test::accessibilityFaults(*window_), std::vector<std::string>{});
}

}  // namespace
}  // namespace velra
