// The menus and the tool bar of the real main window, and what they bring up.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QToolBar>
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

TEST_F(MainMenus, FindListsWhatHoldsTheTextAndOpensItsForm) {
  desktop_.start(desktop_.sample());
  person_.willMeet("SearchDialog", [&](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Input the string to Search"));
    Person::type(dialog, "Text1", "COPY");
    person_.willMeet("SearchResultDialog", [&](QWidget& results) {
      auto& list = control<QTreeView>(results, "ListView1");
      EXPECT_EQ(list.model()->rowCount(), 2);
      person_.willMeet("MediaForm", [&](QWidget& form) {
        EXPECT_TRUE(results.isVisible());
        press(form, "CancelButt");
      });
      QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                        list.visualRect(list.model()->index(1, 0)).center());
      QCoreApplication::sendPostedEvents();
      press(results, "OKButton");
    });
    press(dialog, "OKButt");
  });
  person_.choose("mnuFile", "mnuFileFind");
  person_.willMeet("SearchDialog", [](QWidget& dialog) {
    EXPECT_EQ(control<QLineEdit>(dialog, "Text1").text(), QStringLiteral("COPY"));
    press(dialog, "CancelButt");
  });
  person_.choose("mnuFile", "mnuFileFind");
}

TEST_F(MainMenus, OneLanguageIsTicked) {
  desktop_.start(desktop_.sample());
  const char* const entries[] = {"mnuEnglish", "mnuItalian", "mnuDutch",
                                 "mnuGerman",  "mnuFrench",  "mnuCLDisabled"};
  const auto ticked = [&] {
    QStringList names;
    for (const QAction* each : control<QMenu>(desktop_.window, "mnuLanguage").actions()) {
      if (each->isChecked()) names << each->objectName();
    }
    return names;
  };
  EXPECT_EQ(ticked(), QStringList{QStringLiteral("mnuEnglish")});
  for (const int language : {0, 1, 2, 3, 4, 5, 5, 0}) {
    const bool warns = language == 5 && desktop_.app.iLanguage != 5;
    if (warns) person_.willAnswer(desktop_.app.LoadResString(1164), kPlain, "cmdOK");
    person_.choose("mnuLanguage", entries[language]);
    EXPECT_EQ(ticked(), QStringList{QLatin1String(entries[language])});
    EXPECT_EQ(desktop_.app.iLanguage, language);
  }
}

TEST_F(MainMenus, TheConnectionIsStoredForTheWholeMachine) {
  desktop_.start(desktop_.sample());
  person_.willMeet("ConnectionDialog", [&](QWidget& dialog) {
    EXPECT_EQ(control<QLineEdit>(dialog, "Text2").text(), QStringLiteral("2509"));
    EXPECT_EQ(control<QLineEdit>(dialog, "Text3").text(),
              QStringLiteral("/MediaArchive/datamanager"));
    person_.willAnswer("Port number is positive integer", QMessageBox::Warning, "cmdOK");
    Person::type(dialog, "Text2", "x");
    EXPECT_EQ(control<QLineEdit>(dialog, "Text2").text(), QStringLiteral("2509"));
    Person::type(dialog, "Text1", "archive");
    Person::type(dialog, "Text2", "80");
    press(dialog, "OKButton");
  });
  person_.choose("mnuOptions", "mnuConnection");
  const std::string stored = desktop_.folder.read("machine.ini");
  EXPECT_NE(stored.find("NaroServer=archive\nNaroPort=80\n"), std::string::npos) << stored;
}

TEST_F(MainMenus, HelpAndToolBarSayWhatTheyHave) {
  desktop_.start("");
  desktop_.window.resize(900, 600);
  EXPECT_EQ(control<QLabel>(desktop_.window, "lblTitle_0").text(),
            QStringLiteral("Bibliographic's data"));
  EXPECT_EQ(control<QLabel>(desktop_.window, "lblTitle_1").text(),
            QStringLiteral("Multimedia data"));
  person_.willMeet("frmAbout", [&](QWidget& about) {
    EXPECT_EQ(about.windowTitle(), QStringLiteral("About Velra..."));
    EXPECT_EQ(control<QLabel>(about, "lblTitle").text(), QStringLiteral("velra"));
    EXPECT_TRUE(control<QLabel>(about, "lblVersion").text().startsWith(QStringLiteral("Version ")));
    person_.willAnswer("System Information Is Unavailable At This Time", kPlain, "cmdOK");
    press(about, "cmdSysInfo");
    press(about, "cmdOK");
  });
  person_.choose("mnuHelp", "mnuHelpAbout");
  person_.willAnswer(
      "Unable to display Help Contents. There is no Help associated with this project.", kPlain,
      "cmdOK");
  person_.choose("mnuHelp", "mnuHelpContents");

  auto& bar = control<QToolBar>(desktop_.window, "tbToolBar");
  person_.willAnswer("Add 'Forward' button code.", kPlain, "cmdOK");
  QTest::mouseClick(bar.widgetForAction(&control<QAction>(desktop_.window, "tbToolBar_Forward")),
                    Qt::LeftButton);
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
