// SPDX-License-Identifier: GPL-3.0-or-later

// A day of cutting in the real tool with the sample's movie: by the mouse, and by the keyboard
// alone.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTreeView>
#include <set>

#include "scenario/Desktop.h"
#include "scenario/Hands.h"
#include "widgets/Announcer.h"

namespace velra::test {
namespace {

constexpr const char* kVersion = "Original English sound version";
constexpr const char* kVideo = "Picture of Skarholm Light";

QString timeCode(QWidget& tool) {
  return control<QLineEdit>(tool, "txtTime").text();
}

QColor timeCodeGround(QWidget& tool) {
  return control(tool, "txtTime").palette().color(QPalette::Base);
}

void steps(QWidget& tool, const char* button, int count) {
  for (int step = 0; step < count; ++step) press(tool, button);
}

class CuttingDay : public ::testing::Test {
 protected:
  using Files = std::map<std::string, std::string>;

  std::string text(int id) { return desktop->app.messages.text(id); }
  QStringList expressions() { return desktop->texts("tvwExpression"); }

  void openDocument() {
    desktop->start(desktop->sample());
    desktop->click("tvwMainTree", kVersion);
  }
  void editMetadata(const char* title) {
    desktop->chooseFromMenu("tvwExpression", QLatin1String(title), "mnuEditMetadata");
  }
  void cutByPoints(QWidget& tool, const QString& title, const std::function<void()>& goToEnd) {
    press(tool, "cmdSel");
    goToEnd();
    willType(title);
    press(tool, "cmdSel");
  }
  void cutByDialog(QWidget& tool, const QString& title, const char* start, const char* end) {
    whenModal([&](QWidget& dialog) {
      willType(title);
      typeBounds(dialog, QLatin1String(start), QLatin1String(end));
    });
    press(tool, "cmdNew");
  }

  /// Notes what the window says unasked to people who hear it.
  void listen(QWidget& tool) {
    auto& announcer = control<Announcer>(tool, "announcer");
    const auto* access = QAccessible::queryAccessibleInterface(&announcer);
    EXPECT_EQ(access->role(), QAccessible::Notification);
    QObject::connect(&announcer, &Announcer::said, [this](auto& sentence) { heard << sentence; });
  }

  void playAndStep(QWidget& tool);
  void clearTheNight(QWidget& tool);
  void cutTheNight(QWidget& tool);
  void cutTheGale(QWidget& tool);
  void joinTheWaves(QWidget& tool);
  void nameTheGale(QWidget& tool);
  QStringList titlesOfThePicture();
  Files saveAndComeBack();

  std::unique_ptr<Desktop> desktop = std::make_unique<Desktop>();
  QStringList heard;
};

void CuttingDay::playAndStep(QWidget& tool) {
  EXPECT_EQ(timeCode(tool), QStringLiteral("00:00:00:00"));
  const auto picture = [&] { return control(tool, "picVideoWindow").grab().toImage(); };
  const QImage first = picture();
  press(tool, "cmdPlay");
  EXPECT_TRUE(QTest::qWaitFor([&] { return timeCode(tool) > QStringLiteral("00:00:01:00"); }));
  press(tool, "cmdPause");
  EXPECT_TRUE(QTest::qWaitFor([&] { return picture() != first; }));
  press(tool, "cmdForward");
  const QString paused = timeCode(tool);
  steps(tool, "cmdForward", 5);
  EXPECT_NE(timeCode(tool), paused);
  steps(tool, "cmdRewind", 5);
  EXPECT_EQ(timeCode(tool), paused);
  press(tool, "cmdStop");
}

void CuttingDay::clearTheNight(QWidget& tool) {
  clickPart(tool, "advsld", "The light at night");
  EXPECT_EQ(timeCode(tool), QStringLiteral("00:00:50:00"));
  EXPECT_EQ(selectedParts(tool, "Framelist1"), QStringList("The light at night"));
  willAnswer({{text(1101), "cmdYes"}});
  QTest::keyClick(&control(tool, "advsld"), Qt::Key_Delete);
  EXPECT_EQ(partOf(tool, "advsld", "The light at night"), -1);
  EXPECT_EQ(partOf(tool, "Framelist1", "The light at night"), -1);
  EXPECT_FALSE(expressions().contains(QStringLiteral("The light at night")));
}

void CuttingDay::cutTheNight(QWidget& tool) {
  const QColor ground = timeCodeGround(tool);
  press(tool, "cmdSel");
  EXPECT_TRUE(QTest::qWaitFor([&] { return timeCodeGround(tool) != ground; }));
  strike(Qt::Key_Escape);
  EXPECT_EQ(timeCodeGround(tool), ground);

  cutByPoints(tool, "The lamp", [&] {
    QTest::keyClick(&control(tool, "advsld"), Qt::Key_PageDown);
    steps(tool, "cmdForward", 2);
  });
  cutByDialog(tool, "The steamer", "0:57:0", "1:2:12");
  // In another segment, at its very bound, and none.
  whenModal([&](QWidget& dialog) {
    willAnswer({{text(1120), "cmdOK"}});
    typeBounds(dialog, "0:58:0", "1:3:0");
  });
  press(tool, "cmdNew");
  EXPECT_EQ(partOf(tool, "Framelist1", "The steamer"), 4);
  EXPECT_TRUE(expressions().contains(QStringLiteral("The steamer")));
}

void CuttingDay::cutTheGale(QWidget& tool) {
  EXPECT_EQ(tool.windowTitle(), QStringLiteral("The gale"));
  EXPECT_EQ(timeCode(tool), QStringLiteral("00:00:36:00"));
  cutByPoints(tool, "Splice", [&] { steps(tool, "cmdForward", 12); });
  EXPECT_EQ(timeCode(tool), QStringLiteral("00:00:36:12"));
  cutByDialog(tool, "First wave", "0:37:0", "0:40:0");
  cutByDialog(tool, "Second wave", "0:40:0", "0:43:0");
  press(tool, "cmdNext");
  press(tool, "cmdNext");
  EXPECT_EQ(timeCode(tool), QStringLiteral("00:00:40:00"));
  QTest::keyClick(&control(tool, "advsld"), Qt::Key_End);
  // Backward, so that the points are put in order.
  cutByPoints(tool, "Lightning", [&] { steps(tool, "cmdRewind", 25); });
  willAnswer({{text(1176), "cmdYes"}, {text(1177), "cmdOK"}});
  press(tool, "cmdKeyFrame");
  press(tool, "BackButt");
}

void CuttingDay::joinTheWaves(QWidget& tool) {
  clickPart(tool, "advsld", "First wave");
  clickPart(tool, "Framelist1", "Second wave", Qt::ShiftModifier);
  EXPECT_EQ(selectedParts(tool, "advsld"), QStringList({"First wave", "Second wave"}));
  willAnswer({{text(1150), "cmdYes"}});
  press(tool, "cmdMerge");
  EXPECT_EQ(partOf(tool, "advsld", "Second wave"), -1);
  clickPart(tool, "Framelist1", "Splice");
  willAnswer({{text(1101), "cmdYes"}});
  QTest::keyClick(&control(tool, "Framelist1"), Qt::Key_Delete);
  EXPECT_EQ(partOf(tool, "Framelist1", "Splice"), -1);
}

void CuttingDay::nameTheGale(QWidget& tool) {
  control<QTabBar>(tool, "TabStrip1").setCurrentIndex(1);
  auto& title = textOf(tool, "Title");
  title.selectAll();
  QTest::keyClicks(&title, QStringLiteral("The great gale"));
  press(tool, "OKButt");
}

QStringList CuttingDay::titlesOfThePicture() {
  const QStringList all = expressions();
  return all.mid(1, all.indexOf(QStringLiteral("Sound of Skarholm Light")) - 1);
}

/// The names of the files of one kind, as "8 9 11", in an order of their own.
std::string numbersOf(const std::map<std::string, std::string>& files, const std::string& kind) {
  std::set<int> numbers;
  const std::string begin = "sample/lighthouse_files/lighthouse_" + kind;
  for (const auto& [name, bytes] : files) {
    if (name.starts_with(begin)) numbers.insert(std::stoi(name.substr(begin.size())));
  }
  std::string text;
  for (const int number : numbers) text += (text.empty() ? "" : " ") + std::to_string(number);
  return text;
}

// Saves, ends the run and starts another, which shows the same and finds nothing to write.
CuttingDay::Files CuttingDay::saveAndComeBack() {
  const std::shared_ptr<const SampleFolder> folder = desktop->sharedFolder();
  desktop->trigger("mnuFileSave");
  const Files written = folder->snapshot();
  const QStringList tree = expressions();
  desktop.reset();
  const Files closed = folder->snapshot();
  for (const auto& [name, bytes] : closed) EXPECT_EQ(bytes, written.at(name)) << name;
  desktop = std::make_unique<Desktop>(folder);
  openDocument();
  EXPECT_EQ(expressions(), tree);
  desktop->trigger("mnuFileSave");
  EXPECT_EQ(folder->snapshot(), closed);
  return closed;
}

TEST_F(CuttingDay, ByTheMouse) {
  openDocument();
  inTurn({[&](QWidget& tool) {
            playAndStep(tool);
            clearTheNight(tool);
            cutTheNight(tool);
            doubleClickPart(tool, "advsld", "The gale");
          },
          [&](QWidget& tool) { cutTheGale(tool); },
          [&](QWidget& tool) {
            EXPECT_EQ(tool.windowTitle(), kVideo);
            doubleClickPart(tool, "Framelist1", "The gale");
          },
          [&](QWidget& tool) {
            joinTheWaves(tool);
            nameTheGale(tool);
          }});
  editMetadata(kVideo);
  const Files before = desktop->folder.snapshot();
  const Files after = saveAndComeBack();

  EXPECT_EQ(titlesOfThePicture(),
            QStringList({kVideo, "Skarholm at dawn", "The keeper's day",
                         "One hundred and twelve steps", "The log", "The great gale", "First wave",
                         "Lightning", "The lamp", "The steamer"}));
  EXPECT_EQ(numbersOf(after, "video"), "1 2 3 4 5 6 8 9 11 13");
  EXPECT_EQ(numbersOf(after, "mediaobject"), "1 2 3 4 5 7 8 12 13");
  const struct {
    int number;
    const char* text;
  } said[] = {
      {6, "<Title>The great gale</Title>"},
      {6, "<Keyframe start=\"49000\" end=\"0\""},
      {6, "lighthouse_video8.xml</FollowedByVideo>"},
      {8, "<Title>The lamp</Title><Time start=\"50000\" end=\"50717\""},
      {8, "<PartOfVideo>lighthouse_files/lighthouse_video1.xml"},
      {8, "lighthouse_video9.xml</FollowedByVideo>"},
      {9, "<Title>The steamer</Title><Time start=\"57000\" end=\"62480\""},
      {9, "<Keyframe start=\"59740\" end=\"0\""},
      {11, "<Title>First wave</Title><Time start=\"37000\" end=\"43000\""},
      {11, "lighthouse_mediaobject13.bmp</Keyframe>"},
      {11, "lighthouse_video13.xml</FollowedByVideo>"},
      {13, "<Title>Lightning</Title><Time start=\"49000\" end=\"50000\""},
      {13, "<PartOfVideo>lighthouse_files/lighthouse_video6.xml"},
  };
  for (const auto& row : said) {
    const std::string name =
        "sample/lighthouse_files/lighthouse_video" + std::to_string(row.number) + ".xml";
    EXPECT_NE(after.at(name).find(row.text), std::string::npos) << row.text;
  }
  for (const auto& [name, bytes] : after) {
    if (!name.ends_with("_video6.xml") && before.contains(name)) {
      EXPECT_EQ(bytes, before.at(name)) << name;
    }
  }
}

/// Walks a tree down to a node, on which the tree shows what a click shows.
void walkTo(QTreeView& tree, const char* text) {
  tabTo(tree.objectName().toLatin1());
  strike(Qt::Key_Home);
  for (int step = 0; tree.currentIndex().data() != QLatin1String(text); ++step) {
    if (step == 50) qFatal("no node %s", text);
    strike(Qt::Key_Down);
  }
}

/// Walks along the timeline to a range.
void selectByKeys(QWidget& tool, const QString& title) {
  tabTo("advsld");
  for (int step = 0; step < 10; ++step) strike(Qt::Key_Left, Qt::AltModifier);
  for (int step = 0; selectedParts(tool, "advsld") != QStringList(title); ++step) {
    if (step == 20) qFatal("no range %s", qPrintable(title));
    strike(Qt::Key_Right, Qt::AltModifier);
  }
}

void answerYesByKey() {
  whenModal([](QWidget&) { strikeButton("cmdYes"); });
}

void cutByPointsByKeys(const QString& title) {
  strikeButton("cmdSel");
  tabTo("advsld");
  strike(Qt::Key_PageDown);
  strike(Qt::Key_Right);
  whenModal([title](QWidget&) {
    strikeText(title);
    strike(Qt::Key_Return);
  });
  strikeButton("cmdSel");
}

void cutByDialogByKeys(const QString& title, int seconds) {
  whenModal([&](QWidget&) {
    whenModal([&](QWidget&) {
      strikeText(title);
      strike(Qt::Key_Return);
    });
    tabTo("ss2");
    for (int step = 0; step < seconds; ++step) strike(Qt::Key_Up);
    strike(Qt::Key_Return);
  });
  strikeButton("cmdNew");
}

// The keys alone, from the trees to the end, and what is heard of it.
TEST_F(CuttingDay, ByTheKeyboardAlone) {
  desktop->start(desktop->sample());
  walkTo(desktop->view("tvwMainTree"), kVersion);
  QTreeView& tree = desktop->view("tvwExpression");
  walkTo(tree, kVideo);
  inTurn({[&](QWidget& tool) {
            listen(tool);
            strike(Qt::Key_Space);  // Play has the focus
            EXPECT_TRUE(
                QTest::qWaitFor([&] { return timeCode(tool) > QStringLiteral("00:00:00:10"); }));
            strikeButton("cmdStop");
            selectByKeys(tool, "The light at night");
            answerYesByKey();
            strike(Qt::Key_Delete);
            strikeButton("cmdSel");
            strike(Qt::Key_Escape);
            strike(Qt::Key_O);
            cutByPointsByKeys("The lamp");
            strikeButton("cmdForward");
            EXPECT_TRUE(QTest::qWaitFor([&] { return heard.contains(timeCode(tool)); }));
            cutByDialogByKeys("The steamer", 5);
            selectByKeys(tool, "The gale");
            strike(Qt::Key_Return);
          },
          [&](QWidget& tool) {
            listen(tool);
            EXPECT_EQ(tool.windowTitle(), QStringLiteral("The gale"));
            cutByDialogByKeys("Wave", 2);
            strikeButton("cmdNext");
            cutByDialogByKeys("Foam", 1);
            tabTo("Framelist1");
            strike(Qt::Key_Home);
            strike(Qt::Key_End, Qt::ShiftModifier);
            EXPECT_EQ(selectedParts(tool, "advsld").size(), 2);
            answerYesByKey();
            strikeButton("cmdMerge");
            strikeButton("BackButt");
          },
          [&](QWidget& tool) {
            EXPECT_EQ(tool.windowTitle(), kVideo);
            tabTo("TabStrip1");
            strike(Qt::Key_Right);
            strikeButton("OKButt");
          }});
  tabTo("tvwExpression");
  QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
  QCoreApplication::sendEvent(tree.viewport(), &menuKey);
  strikeEntry("mnuEditMetadata");
  const Files after = saveAndComeBack();
  EXPECT_EQ(titlesOfThePicture(), QStringList({kVideo, "Skarholm at dawn", "The keeper's day",
                                               "One hundred and twelve steps", "The log",
                                               "The gale", "Wave", "The lamp", "The steamer"}));
  EXPECT_EQ(numbersOf(after, "video"), "1 2 3 4 5 6 8 9 10");
  EXPECT_EQ(
      heard.filter(QStringLiteral(" ")),
      QStringList({"Segments removed: 1", "First point taken: 00:00:50:00", "First point given up.",
                   "No first point has been taken.", "First point taken: 00:00:50:00",
                   "Segment made: 'The lamp': From 00:00:50:00 To 00:00:50:16",
                   "Segment made: 'The steamer': From 00:00:50:17 To 00:00:55:17",
                   "Segment made: 'Wave': From 00:00:36:00 To 00:00:38:00",
                   "Segment made: 'Foam': From 00:00:38:00 To 00:00:39:00",
                   "Segments merged: 'Wave': From 00:00:36:00 To 00:00:39:00"}));
}

}  // namespace
}  // namespace velra::test
