// SPDX-License-Identifier: GPL-3.0-or-later

// The menus and the tool bar of the real main window, and what they bring up.
#include <gtest/gtest.h>

#include <QLabel>
#include <QTreeView>
#include <ostream>

#include "Desktop.h"
#include "Person.h"

namespace velra::test {
namespace {

constexpr auto kPlain = QMessageBox::NoIcon;

class MainMenus : public ::testing::Test {
 protected:
  QString root() {
    const QStringList texts = desktop_.texts("tvwMainTree");
    return texts.isEmpty() ? QString() : texts.front();
  }
  std::string savedTitle(const std::string& name) const {
    const std::string xml = desktop_.folder.read(name);
    const std::size_t start = xml.find("<Title>") + 7;
    return xml.substr(start, xml.find("</Title>") - start);
  }

  Desktop desktop_;
  Person person_{desktop_.window};
};

struct Replacement {
  const char* entry;
  const char* button;
  const char* saved;  // the title in the file
  const char* shown;  // in the tree, which does not know of the change
};

// The test's name shows it.
void PrintTo(const Replacement& one, std::ostream* out) {
  *out << one.entry << ' ' << one.button;
}

class Replacements : public MainMenus, public ::testing::WithParamInterface<Replacement> {};

TEST_P(Replacements, OfAChangedDocumentAskFirst) {
  const Replacement& one = GetParam();
  desktop_.start(desktop_.sample());
  changeCurrentFolder(desktop_.folder.path());
  desktop_.app.gAVDoc->setStrTitle("Changed");
  if (one.entry == std::string("mnuFileOpen")) {
    person_.willChooseFile("Open", "", desktop_.sample());
  }
  person_.willAnswer("Save modifications Changed?", QMessageBox::Question, one.button);
  person_.choose("mnuFile", one.entry);
  EXPECT_EQ(savedTitle("sample/lighthouse.xml"), one.saved);
  EXPECT_EQ(root(), QLatin1String(one.shown));
}

INSTANTIATE_TEST_SUITE_P(
    MainMenus, Replacements,
    ::testing::Values(Replacement{"mnuFileOpen", "cmdYes", "Changed", "Changed"},
                      Replacement{"mnuFileOpen", "cmdNo", "Skarholm Light", "Skarholm Light"},
                      Replacement{"mnuFileOpen", "cmdCancel", "Skarholm Light", "Skarholm Light"},
                      Replacement{"mnuFileNew", "cmdYes", "Changed", "AVDocument"},
                      Replacement{"mnuFileNew", "cmdNo", "Skarholm Light", "AVDocument"},
                      Replacement{"mnuFileNew", "cmdCancel", "Skarholm Light", "Skarholm Light"}));

TEST_F(MainMenus, ADocumentIsMadeSavedSavedAsAndClosedWithoutAQuestion) {
  changeCurrentFolder(desktop_.folder.path());
  desktop_.start("");
  EXPECT_EQ(root(), QString());
  person_.choose("mnuFile", "mnuFileSave");  // nothing to save
  person_.choose("mnuFile", "mnuFileNew");
  EXPECT_EQ(root(), QStringLiteral("AVDocument"));
  person_.willChooseFile("Save As", "AVDocument", desktop_.folder / "film.xml");
  person_.choose("mnuFile", "mnuFileSave");
  EXPECT_EQ(root(), QStringLiteral("film"));
  EXPECT_EQ(savedTitle("film.xml"), "film");

  desktop_.app.gAVDoc->setStrTitle("Film");
  person_.choose("mnuFile", "mnuFileSave");
  EXPECT_EQ(savedTitle("film.xml"), "Film");
  person_.willChooseFile("Save As", "film", desktop_.folder / "copy.xml");
  person_.choose("mnuFile", "mnuFileSaveAs");
  EXPECT_EQ(root(), QStringLiteral("copy"));
  EXPECT_EQ(savedTitle("film.xml"), "Film");

  desktop_.app.gAVDoc->setStrTitle("lost");
  const std::string before = desktop_.folder.read("copy.xml");
  person_.choose("mnuFile", "mnuFileClose");
  EXPECT_FALSE(desktop_.window.isVisible());
  EXPECT_EQ(desktop_.folder.read("copy.xml"), before);
  EXPECT_NE(desktop_.folder.read("user.ini").find("MainWidth="), std::string::npos);
}

TEST_F(MainMenus, FindAsksAndListsWhatHoldsTheText) {
  desktop_.start(desktop_.sample());
  person_.willMeet("SearchDialog", [&](QWidget& dialog) {
    Person::type(dialog, "Text1", "COPY");
    person_.willMeet("SearchResultDialog", [](QWidget& results) {
      EXPECT_EQ(control<QTreeView>(results, "ListView1").model()->rowCount(), 2);
      press(results, "OKButton");
    });
    press(dialog, "OKButt");
  });
  person_.choose("mnuFile", "mnuFileFind");
}

TEST_F(MainMenus, EachEntryChoosesItsLanguage) {
  desktop_.start("");
  const char* const entries[] = {"mnuItalian", "mnuDutch", "mnuGerman", "mnuFrench"};
  person_.willAnswer(desktop_.app.messages.text(1164), kPlain, "cmdOK");
  person_.choose("mnuLanguage", "mnuCLDisabled");
  for (int language = 4; language > 0; --language) {
    person_.choose("mnuLanguage", entries[language - 1]);
    EXPECT_EQ(desktop_.app.iLanguage, language);
    EXPECT_TRUE(control<QAction>(desktop_.window, entries[language - 1]).isChecked());
  }
}

TEST_F(MainMenus, AboutTellsTheVersion) {
  desktop_.start("");
  person_.willMeet("frmAbout", [&](QWidget& about) {
    EXPECT_EQ(about.windowTitle(), QStringLiteral("About Velra..."));
    EXPECT_EQ(control<QLabel>(about, "lblTitle").text(), QStringLiteral("velra"));
    EXPECT_TRUE(control<QLabel>(about, "lblVersion").text().startsWith(QStringLiteral("Version ")));
    person_.willAnswer("System Information Is Unavailable At This Time", kPlain, "cmdOK");
    press(about, "cmdSysInfo");
    press(about, "cmdOK");
  });
  person_.choose("mnuHelp", "mnuHelpAbout");
}

/// A document with removed objects, with unsaved changes, and then a port that is none.
void workIntoARunTimeError() {
  Desktop desktop;
  Person person(desktop.window);
  desktop.start(desktop.sample());
  desktop.click("tvwMainTree", QStringLiteral("Dutch re-release"));
  person.willAnswer(
      "Are you sure you want elminate the object Dutch re-release and all its childs?",
      QMessageBox::Question, "cmdYes");
  QTest::keyClick(&desktop.view("tvwMainTree"), Qt::Key_Delete);
  person.choose("mnuFile", "mnuFileSave");
  desktop.app.gAVDoc->setStrTitle("not saved");
  person.willMeet("ConnectionDialog", [&](QWidget& dialog) {
    person.willMeet("msgBox", [](QWidget& box) {
      const QString text = dynamic_cast<QMessageBox&>(box).text();
      std::fprintf(stderr, "box: %s\n", text.toUtf8().constData());
      press(box, "cmdOK");
    });
    Person::type(dialog, "Text2", "");
    press(dialog, "OKButton");
  });
  person.choose("mnuOptions", "mnuConnection");
}

// What was removed and saved goes from the disk when the document is closed. A run-time error is no
// such end: the program stops where it stands.
TEST(EndOfTheProgram, ByARunTimeErrorDeletesAndWritesNothing) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");  // the windows have threads
  const TemporaryFolder outer;
  const QByteArray before = qgetenv("TMPDIR");
  qputenv("TMPDIR", outer.path().c_str());
  EXPECT_EXIT(workIntoARunTimeError(), ::testing::ExitedWithCode(1),
              "A value is of the wrong type[^\n]*\n(.*\n)?box: A value is of the wrong type");
  before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
  bool kept = false;
  for (const auto& [name, bytes] : outer.snapshot()) {
    kept |= name.ends_with("lighthouse_version2.xml");
    if (name.ends_with("/lighthouse.xml")) {
      EXPECT_EQ(bytes.find("lighthouse_version2"), std::string::npos);  // it was saved before
    }
    EXPECT_EQ(bytes.find("not saved"), std::string::npos) << name;
    EXPECT_FALSE(name.ends_with("user.ini"));
  }
  EXPECT_TRUE(kept);
}

}  // namespace
}  // namespace velra::test
