// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/FieldControls.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDateEdit>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>

#include "vocabulary/NaroThematicKeywords.h"
#include "widgets/AccessibilityWalk.h"
#include "widgets/FormWindowTest.h"
#include "widgets/forms/StorableText.h"

namespace velra {
namespace {

using test::FormWindowTest;

class FieldControlsTest : public FormWindowTest {
 protected:
  /// The caller's list, with all its entries.
  QStringList items(const QComboBox& list) {
    QStringList texts;
    const auto* view = qobject_cast<const QListView*>(list.view());
    for (int i = 0; i < list.count(); ++i) {
      if (!view->isRowHidden(i)) texts << list.itemText(i);
    }
    return texts;
  }
  void click(const char* name, QWidget* within = nullptr) {
    QTest::mouseClick(&find<QPushButton>(name, within), Qt::LeftButton);
  }
  void tick(const char* name, QWidget* within = nullptr) {
    QTest::keyClick(&find<QCheckBox>(name, within), Qt::Key_Space);
  }
};

TEST_F(FieldControlsTest, ReadOnlyLooksDifferentByKind) {
  object_->shared.collCloseListTypes.Add({"Colours", {"red"}});
  object_->add(tyType::String, "T", "a\tb");
  object_->add(tyType::Bool, "B", true);
  object_->add(tyType::Date, "D", Date{});
  object_->add(tyType::CloseList, "C", "red", "Colours");
  object_->add(tyType::SetOfStrings, "S", StringList{"x"});
  for (SchemaElement& field : object_->secol()) field.setBReadOnly(true);
  open();
  auto& text = find<QPlainTextEdit>("Text1_1");
  EXPECT_TRUE(text.isEnabled());
  EXPECT_TRUE(text.isReadOnly());
  QTest::keyClicks(&text, QStringLiteral("typed"));
  QTest::keyClick(&text, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(text.textCursor().selectedText(), QStringLiteral("a\tb"));
  for (const char* name : {"Check1_1", "DTPicker1_1", "Combo1_1"}) {
    EXPECT_FALSE(find(name).isEnabled()) << name;
  }
  QWidget& set = find("ctlSetOfString1_1");
  for (const char* name : {"Text1_1", "Check1_1", "Command1", "Command2"}) {
    EXPECT_FALSE(find(name, &set).isEnabled()) << name;
  }
  text.setFocus();
  for (const char* value : {"ticked", "2001-01-01", "red", "x"}) {  // what the Tab key comes to
    QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window_->focusWidget()->accessibleDescription().toStdString(),
              std::string(value) + ", read only");
  }
}

TEST_F(FieldControlsTest, WhatIsEnteredReachesTheFields) {
  object_->shared.collCloseListTypes.Add({"Colours", {"red", "blue"}});
  object_->add(tyType::String, "T", "old");
  object_->add(tyType::Bool, "B", false);
  object_->add(tyType::Date, "D", Date{2001, 1, 1});
  object_->add(tyType::CloseList, "C", "red", "Colours");
  object_->add(tyType::Date, "E", Date{50, 1, 1});
  open();
  QTest::keyClicks(&find("DTPicker1_2"), QStringLiteral("9"));
  QTest::keyClick(&find("Text1_1"), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(&find("Text1_1"), QStringLiteral("new"));
  tick("Check1_1");
  find<QDateEdit>("DTPicker1_1").setDate(QDate(1999, 12, 31));
  QTest::keyClick(&find("Combo1_1"), Qt::Key_Down);
  QTest::mouseClick(&find("OKButt"), Qt::LeftButton);
  EXPECT_EQ(stored(1), Value("new"));
  EXPECT_EQ(stored(2), Value(std::int16_t{1}));
  EXPECT_EQ(stored(3), Value(Date{1999, 12, 31}));
  EXPECT_EQ(stored(4), Value("blue"));
  EXPECT_EQ(stored(5), Value(Date{50, 1, 19}));
}

TEST_F(FieldControlsTest, UntouchedTextsStayByteForByte) {
  const std::string odd = "line\r\nhard\u00a0blank\u2028end";
  object_->add(tyType::String, "T", odd);
  object_->add(tyType::SetOfStrings, "S", StringList{odd, ""});
  object_->add(tyType::Date, "D", Date{50, 1, 1});  // earlier than the picker can show
  open();
  auto& early = find<QLineEdit>("DTPicker1_1");
  QTest::keyClicks(&early, QStringLiteral("x"));
  QTest::keyClick(&early, Qt::Key_Return);
  EXPECT_EQ(early.text(), QStringLiteral("0050-01-01"));
  QTest::mouseClick(&find("OKButt"), Qt::LeftButton);
  EXPECT_FALSE(object_->bChanged());
}

TEST_F(FieldControlsTest, CharactersThatNoFileCanHoldStayOut) {
  EXPECT_EQ(storableText(QString::fromUtf16(u"a\u0001\tb\n\uFFFE\U0001F3A5")),
            QString::fromUtf16(u"a\tb\n\U0001F3A5"));
  EXPECT_EQ(storableText(QString(QChar(0xD83C)) + u'x' + QChar(0xDFA5)), QStringLiteral("x"));
  object_->add(tyType::String, "T", "");
  object_->add(tyType::SetOfStrings, "S", StringList{""});
  open();
  QGuiApplication::clipboard()->setText(QString::fromUtf16(u"a\u0002\u00a0b\u000b"));
  find<QPlainTextEdit>("Text1_1").paste();
  find<QLineEdit>("Text1_1", &find("ctlSetOfString1_1")).paste();
  QTest::mouseClick(&find("OKButt"), Qt::LeftButton);
  EXPECT_EQ(stored(1), Value("a\u00a0b"));
  EXPECT_EQ(stored(2), Value(StringList{"a\u00a0b"}));
}

TEST_F(FieldControlsTest, AValueOutsideItsListIsShownAndNotOffered) {
  object_->shared.collCloseListTypes.Add({"Colours", {"red", "blue"}});
  object_->add(tyType::CloseList, "C", "green", "Colours");
  open();
  auto& list = find<QComboBox>("Combo1_1");
  EXPECT_EQ(list.currentText(), QStringLiteral("green"));
  EXPECT_EQ(items(list), (QStringList{"red", "blue"}));
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(list.currentText(), QStringLiteral("red"));
  QTest::keyClick(&list, Qt::Key_Up);
  EXPECT_EQ(list.currentText(), QStringLiteral("red"));
}

TEST_F(FieldControlsTest, RowsOfASet) {
  object_->add(tyType::SetOfStrings, "S", StringList{"a", "b", "c", "d"});
  open();
  QWidget& set = find("ctlSetOfString1_1");
  tick("Check1_1", &set);
  tick("Check1_3", &set);
  click("Command2", &set);
  EXPECT_EQ(set.findChild<QWidget*>(QStringLiteral("Text1_3")), nullptr);
  EXPECT_EQ(find<QLineEdit>("Text1_1", &set).text(), QStringLiteral("b"));
  EXPECT_FALSE(find<QCheckBox>("Check1_1", &set).isChecked());
  click("Command1", &set);
  QWidget* added = &find("Text1_3", &set);
  EXPECT_EQ(window_->focusWidget(), added);
  QTest::keyClicks(added, QStringLiteral("new"));
  QTest::keyClick(added, Qt::Key_Return);              // does not end the form
  for (const char* name : {"Command1", "Command2"}) {  // behind the rows, as on the screen
    QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window_->focusWidget(), &find(name, &set));
  }
  for (const char* name : {"Command1", "Text1_3", "Check1_3", "Text1_2"}) {
    QTest::keyClick(window_->focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(window_->focusWidget(), &find(name, &set));
  }
  QTest::mouseClick(&find("OKButt"), Qt::LeftButton);
  EXPECT_EQ(stored(1), Value(StringList{"b", "d", "new"}));
}

TEST_F(FieldControlsTest, ALongRowShowsItsBeginning) {
  object_->add(tyType::SetOfStrings, "S", StringList{std::string(200, 'w'), "short"});
  open();
  QWidget& set = find("ctlSetOfString1_1");
  auto& row = find<QLineEdit>("Text1_1", &set);
  EXPECT_EQ(row.cursorPosition(), 0);
  QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);  // selects it all
  EXPECT_EQ(window_->focusWidget(), &row);
  EXPECT_EQ(row.selectedText().size(), 200);
  EXPECT_EQ(row.cursorPosition(), 0);
  QTest::keyClick(&row, Qt::Key_End);
  QTest::keyClick(&row, Qt::Key_Tab);
  EXPECT_EQ(row.cursorPosition(), 0);
}

TEST_F(FieldControlsTest, ASetScrollsWhenItsRowsDoNotFit) {
  object_->add(tyType::SetOfStrings, "S", StringList{});
  open();
  QWidget& set = find("ctlSetOfString1_1");
  auto& bar = find<QScrollBar>("VScroll1", &set);
  EXPECT_EQ(find("Picture1", &set).height(), 0);
  EXPECT_FALSE(bar.isVisible());
  for (int i = 0; i < 5; ++i) click("Command1", &set);
  EXPECT_TRUE(bar.isVisible());
  QWidget& last = find("Text1_5", &set);
  QWidget& view = find("Picture2", &set);
  const auto inSight = [&](const QWidget& row) {
    return view.rect().contains(QRect(row.mapTo(&view, QPoint()), row.size()));
  };
  EXPECT_TRUE(inSight(last));
  for (int i = 0; i < 8; ++i) QTest::keyClick(window_->focusWidget(), Qt::Key_Backtab);
  EXPECT_EQ(window_->focusWidget(), &find("Text1_1", &set));
  EXPECT_TRUE(inSight(find("Text1_1", &set)));
}

TEST_F(FieldControlsTest, ListsOverTheVocabularyFollowOneAnother) {
  app_.objNaroThematicKeywords = std::make_shared<NaroThematicKeywords>();
  ASSERT_TRUE(app_.objNaroThematicKeywords->bSetFromXMLFile(
      app_, application_.folder.write("words.xml", R"(<NaroThematicKeywords>
        <Theme English="Art" Italian="Arte"><Subtheme English="Dance" Italian="Danza">
          <Keyword English="Ballet" Italian="Balletto"/><Keyword English="Tango"/>
        </Subtheme></Theme>
        <Theme English="War" Italian="Guerra"><Subtheme English="Peace" Italian="Pace">
          <Keyword English="Treaty" Italian="Trattato"/></Subtheme></Theme>
        </NaroThematicKeywords>)")));
  app_.iLanguage = 1;
  object_->add(tyType::String, "Themes", "Art");
  object_->add(tyType::String, "Subthemes", "Dance");
  object_->add(tyType::SetOfStrings, "ThematicKeywords", StringList{"Tango", "Ballet"});
  open(ObjectKind::AVDocument);
  EXPECT_EQ(test::accessibilityFaults(*window_), std::vector<std::string>{});
  QWidget& set = find("ctlSetOfStringCL1");
  auto& first = find<QComboBox>("Combo1_1", &set);
  EXPECT_EQ(first.currentText(), QStringLiteral("Tango"));
  EXPECT_EQ(items(first), (QStringList{"Balletto", "Tango"}));
  QTest::keyClick(&first, Qt::Key_Up);
  EXPECT_EQ(form_->fields().colControls()[2].rows->rowText(1), "Balletto");
  auto& themes = find<QComboBox>("Combo1_1");
  QTest::keyClick(&themes, Qt::Key_Down);
  EXPECT_EQ(themes.currentText(), QStringLiteral("Arte"));
  application_.ui.yesNo = {true};
  QTest::keyClick(&themes, Qt::Key_Down);
  EXPECT_EQ(application_.ui.shown.size(), 2u);
  EXPECT_EQ(themes.currentText(), QStringLiteral("Guerra"));
  EXPECT_EQ(items(find<QComboBox>("Combo1_2")), QStringList{"Pace"});
  EXPECT_EQ(set.findChild<QWidget*>(QStringLiteral("Combo1_1")), nullptr);
  click("Command1", &set);
  EXPECT_EQ(find<QComboBox>("Combo1_1", &set).currentText(), QStringLiteral("Trattato"));
  QTest::mouseClick(&find("OKButt"), Qt::LeftButton);
  EXPECT_EQ(stored(1), Value("War"));
  EXPECT_EQ(stored(3), Value(StringList{"Treaty"}));
}

}  // namespace
}  // namespace velra
