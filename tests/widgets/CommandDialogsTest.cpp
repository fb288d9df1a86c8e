// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>
#include <QTreeWidget>

#include "rescue/RescueStore.h"
#include "rescue/RescueWriter.h"
#include "shell/ConnectionDialog.h"
#include "shell/Program.h"
#include "shell/RecoverDialog.h"
#include "shell/SearchDialog.h"
#include "shell/SearchResultDialog.h"
#include "shell/ShotsDialog.h"
#include "store/ObjectRegistry.h"
#include "support/FormObject.h"
#include "widgets/AccessibilityWalk.h"
#include "widgets/ModalAnswer.h"
#include "widgets/QtText.h"
#include "widgets/dialogs/SearchResultWindow.h"
#include "widgets/forms/QtFormPresenter.h"
#include "widgets/main/TreeIconPainter.h"

namespace velra {
namespace {

using test::whenModal;

template <class Widget>
Widget& child(QWidget& window, const char* name) {
  Widget* found = window.findChild<Widget*>(QLatin1String(name));
  if (!found) ADD_FAILURE() << name;
  return *found;
}

void press(QWidget& window, const char* button) {
  QTest::mouseClick(&child<QPushButton>(window, button), Qt::LeftButton);
}

class CommandDialogs : public ::testing::Test {
 protected:
  test::TestApplication application_;
  ApplicationModule& app_ = application_.app;
  test::RecordingMainWindow owner_;
  const test::TemporaryFolder folder_;
  QtFormPresenter presenter_{app_};
};

TEST_F(CommandDialogs, SearchAsksAndRemembers) {
  SearchDialog dialog;
  whenModal([&](QWidget& window) {
    EXPECT_EQ(fromQString(window.windowTitle()), app_.messages.text(1121));
    QLineEdit& text = child<QLineEdit>(window, "Text1");
    EXPECT_EQ(text.text(), QString());
    EXPECT_EQ(child<QLabel>(window, "Label1").text(), QStringLiteral("Find What:"));
    EXPECT_EQ(child<QLabel>(window, "Label1").buddy(), &text);
    EXPECT_EQ(child<QCheckBox>(window, "Check1").text(), QStringLiteral("Mach Case"));
    EXPECT_EQ(child<QCheckBox>(window, "Check2").text(), QStringLiteral("Single Word"));
    QTest::keyClicks(&text, QStringLiteral("keeper"));
    QTest::mouseClick(&child<QCheckBox>(window, "Check2"), Qt::LeftButton, {}, QPoint(8, 8));
    QTest::keyClick(&text, Qt::Key_Return);
  });
  dialog.Show(presenter_, owner_);
  EXPECT_EQ(dialog.strText(), "keeper");
  EXPECT_FALSE(dialog.bMatchCase());
  EXPECT_TRUE(dialog.bSingleWord());
  EXPECT_FALSE(dialog.bCancelPressed());

  whenModal([](QWidget& window) {
    EXPECT_EQ(child<QLineEdit>(window, "Text1").text(), QStringLiteral("keeper"));
    EXPECT_FALSE(child<QCheckBox>(window, "Check1").isChecked());
    EXPECT_TRUE(child<QCheckBox>(window, "Check2").isChecked());
    QTest::keyClicks(&child<QLineEdit>(window, "Text1"), QStringLiteral("typed in vain"));
    QTest::keyClick(&window, Qt::Key_Escape);
  });
  dialog.Show(presenter_, owner_);
  EXPECT_EQ(dialog.strText(), "keeper");
  EXPECT_TRUE(dialog.bCancelPressed());
}

TEST_F(CommandDialogs, ConnectionHasItsTextsAndRefusesPorts) {
  ConnectionDialog dialog(app_);
  dialog.setSettings({"host", 2509, "<b>name</b>", "http"});
  whenModal([&](QWidget& window) {
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Connection Parameters"));
    QStringList captions;
    for (const QLabel* label : window.findChildren<QLabel*>()) {
      if (label->buddy()) captions << label->text() + u' ' + label->buddy()->objectName();
    }
    EXPECT_EQ(captions.join(u'|'), QStringLiteral("Server Address Text1|Port Text2|"
                                                  "Datamanager Text3|Http Server Text4"));
    for (const auto& box : ConnectionDialog::kBoxes) {
      QLineEdit& edit = child<QLineEdit>(window, box.name);
      EXPECT_EQ(fromQString(edit.toolTip()), app_.messages.text(box.toolTip));
    }
    EXPECT_EQ(child<QLineEdit>(window, "Text3").text(), QStringLiteral("<b>name</b>"));
    QLineEdit& port = child<QLineEdit>(window, "Text2");
    port.selectAll();
    QTest::keyClick(&port, Qt::Key_Delete);
    EXPECT_EQ(port.text(), QString());
    QTest::keyClicks(&port, QStringLiteral("8x"));
    EXPECT_EQ(port.text(), QStringLiteral("8"));
    press(window, "OKButton");
  });
  dialog.Show(presenter_, owner_);
  EXPECT_EQ(application_.ui.takeShown(),
            std::vector<std::string>{"exclamation: " + app_.messages.text(1162)});
  EXPECT_TRUE(dialog.bChanged());
  EXPECT_EQ(dialog.settings().iPort, 8);
  EXPECT_EQ(dialog.settings().strAddress, "host");
  whenModal([](QWidget& window) {
    QTest::keyClicks(&child<QLineEdit>(window, "Text1"), QStringLiteral("typed in vain"));
    window.close();
  });
  dialog.Show(presenter_, owner_);
  EXPECT_FALSE(dialog.bChanged());
}

TEST_F(CommandDialogs, UnsavedWorkHasAButtonForEachThingToDo) {
  RescueWriter rescue(folder_ / "rescue.sqlite");
  app_.rescue = &rescue;
  rescue.run([](RescueStore& store) {
    const SessionId session = store.begin("/films/film.xml", "a-machine boot 1 1");
    store.keep(session, {{"/films/a.xml", "Video", "<b>Dawn</b>", "<a/>", false, {}},
                         {"/films/b.xml", "Video", "Dusk", "", true, {}}});
    store.end(session, SessionEnd::Error);
    store.keepReplaced(session, "/films/c.xml", "<c/>");
  });
  RecoverDialog dialog(app_, "");
  whenModal([&](QWidget& window) {
    QTreeWidget& list = child<QTreeWidget>(window, "lvwKept");
    EXPECT_EQ(test::accessibilityFaults(window), std::vector<std::string>{});
    const auto open = [&] {
      std::string names;
      for (const char* name : {"cmdRecover", "cmdSaveAsFiles", "cmdDrop", "cmdClose"}) {
        if (child<QPushButton>(window, name).isEnabled()) names += std::string(name) + " ";
      }
      return names;
    };
    EXPECT_EQ(open(), "cmdRecover cmdSaveAsFiles cmdDrop cmdClose ");
    EXPECT_EQ(list.currentItem()->text(3), QStringLiteral("<b>Dawn</b>, Dusk"));
    EXPECT_EQ(list.currentItem()->text(4), QStringLiteral("Ended by an error"));
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(open(), "cmdSaveAsFiles cmdDrop cmdClose ");
    application_.ui.yesNo = {true};
    press(window, "cmdDrop");
    EXPECT_EQ(list.topLevelItemCount(), 1);
    application_.ui.filesToSave = {};
    press(window, "cmdRecover");  // asks for a path
    QTest::keyClick(&window, Qt::Key_Escape);
  });
  EXPECT_EQ(dialog.Show(presenter_, owner_), "");
  EXPECT_EQ(application_.ui.takeShown().back(),
            "save: Recover Unsaved Work | /films/film-recovered.xml");
  app_.rescue = nullptr;
}

TEST_F(CommandDialogs, ShotsStandWithTheirPicturesAndCanBeUnticked) {
  ShotsDialog dialog(app_, {VELRA_SOURCE_DIR "/tests/data/movies/shots-25.mpg", {}}, 25);
  whenModal([&](QWidget& window) {
    QListWidget& list = child<QListWidget>(window, "lstShots");
    EXPECT_EQ(test::accessibilityFaults(window), std::vector<std::string>{});
    EXPECT_EQ(list.count(), 7);
    child<QDoubleSpinBox>(window, "numShortest").setValue(3);
    press(window, "cmdSearch");
    EXPECT_EQ(list.count(), 4);
    EXPECT_FALSE(list.item(3)->icon().isNull());
    list.item(1)->setCheckState(Qt::Unchecked);
    press(window, "cmdMakeSegments");
  });
  const std::vector<FoundShot> shots = dialog.Show(presenter_, owner_);
  ASSERT_EQ(shots.size(), 3U);
  EXPECT_NEAR(shots[1].start, 9, 0.001);
}

TEST(SearchResults, RowsOpenTheirFormsByMouseAndKeyboard) {
  test::Program program;
  program.mainForm.OpenFile(program.sample());
  QtFormPresenter presenter(program.app);
  SearchResultDialog dialog(program.app, program.mainForm.imlTreeIcons());
  whenModal([&](QWidget& window) {
    QTreeView& list = child<QTreeView>(window, "ListView1");
    const QAbstractItemModel& model = *list.model();
    ASSERT_EQ(model.rowCount(), 2);
    QStringList first;
    QStringList headers;
    for (int column = 0; column < model.columnCount(); ++column) {
      headers << model.headerData(column, Qt::Horizontal).toString();
      first << model.index(0, column).data().toString();
      EXPECT_NEAR(list.columnWidth(column), list.viewport()->width() / 3.0, 1);
    }
    EXPECT_EQ(headers, (QStringList{QStringLiteral("Type"), QStringLiteral("Title"),
                                    QStringLiteral("Number of founds")}));
    EXPECT_EQ(first, (QStringList{QStringLiteral("Media"), QStringLiteral("MPEG-1 viewing copy"),
                                  QStringLiteral("1")}));
    EXPECT_FALSE(model.index(0, 0).data(Qt::DecorationRole).value<QIcon>().isNull());

    const auto opened = [&] {
      QCoreApplication::sendPostedEvents();
      return std::exchange(program.presenter.captions, {}).size();
    };
    const QModelIndex second = model.index(1, 1);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(second).center());
    EXPECT_EQ(opened(), 1U);
    EXPECT_EQ(list.currentIndex().row(), 1);
    QTest::mouseClick(list.viewport(), Qt::RightButton, {}, list.visualRect(second).center());
    EXPECT_EQ(opened(), 0U);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
      QTest::keyClick(&list, key);
      EXPECT_EQ(opened(), 1U) << key;
    }
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(opened(), 0U);
    EXPECT_TRUE(window.isVisible());
    press(window, "OKButton");
  });
  dialog.ShowDialog(presenter, program.mainForm, "copy", true, false);
}

TEST(SearchResults, AnEmptyListIsShownWithoutAMessage) {
  test::Program program;
  program.mainForm.OpenFile(program.sample());
  QtFormPresenter presenter(program.app);
  SearchResultDialog dialog(program.app, program.mainForm.imlTreeIcons());
  whenModal([](QWidget& window) {
    QTreeView& list = child<QTreeView>(window, "ListView1");
    EXPECT_EQ(list.model()->rowCount(), 0);
    QTest::mouseClick(list.viewport(), Qt::LeftButton);
    QTest::keyClick(&list, Qt::Key_Space);
    QCoreApplication::sendPostedEvents();
    press(window, "CancelButton");
  });
  dialog.ShowDialog(presenter, program.mainForm, "no such words", false, false);
  EXPECT_TRUE(program.presenter.captions.empty());
  EXPECT_TRUE(program.ui.shown.empty());
}

TEST(SearchResults, IconsAreThoseOfTheTrees) {
  test::Program program;
  program.mainForm.OpenFile(program.sample());
  QtFormPresenter presenter(program.app);
  SearchResultDialog dialog(program.app, program.mainForm.imlTreeIcons());
  const auto imageOf = [](const QModelIndex& row) {
    return row.data(Qt::DecorationRole)
        .value<QIcon>()
        .pixmap(TreeIconPainter::iconSize())
        .toImage();
  };
  whenModal([&](QWidget& window) {
    const QAbstractItemModel& model = *child<QTreeView>(window, "ListView1").model();
    TreeIconPainter painter(program.mainForm.imlTreeIcons());
    ASSERT_EQ(model.rowCount(), 1);
    const QImage frame = painter.icon(program.object("video4")->strGUID())
                             .pixmap(TreeIconPainter::iconSize())
                             .toImage();
    EXPECT_EQ(imageOf(model.index(0, 0)), frame);
    press(window, "CancelButton");
  });
  dialog.ShowDialog(presenter, program.mainForm, "hundred and twelve", false, false);
}

TEST(SearchResults, RowsThatComeLaterLeaveThePersonWhereSheIs) {
  test::Program program;
  program.mainForm.OpenFile(program.sample());
  for (int i = 0; i < 1000; ++i) {
    const auto object = std::make_shared<test::FormObject>(program.app, ObjectKind::Version);
    object->add(tyType::String, "Field1", i < 999 ? "a whale" : "a whale, and a walrus");
    program.document()->collObjects().Add(object);
  }
  SearchResultDialog dialog(program.app, program.mainForm.imlTreeIcons(), {300, {}});
  const auto rowsOf = [&](const char* text, const std::function<void(QTreeView&)>& before) {
    QList<int> rows;  // in all, the current one, how many are selected
    program.presenter.onResults = [&](SearchResultDialog&) {
      SearchResultWindow window(program.app, dialog, nullptr);
      window.show();
      QTreeView& list = child<QTreeView>(window, "ListView1");
      EXPECT_TRUE(dialog.bSearching());
      EXPECT_EQ(window.cursor().shape(), Qt::BusyCursor);
      before(list);
      const int scrolled = list.verticalScrollBar()->value();
      while (dialog.bSearching()) QCoreApplication::processEvents();
      EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
      EXPECT_EQ(list.verticalScrollBar()->value(), scrolled);
      const auto selected = list.selectionModel()->selectedRows().size();
      rows = {list.model()->rowCount(), list.currentIndex().row(), static_cast<int>(selected)};
    };
    dialog.ShowDialog(program.presenter, program.mainForm, text, false, false);
    return rows;
  };
  EXPECT_EQ(rowsOf("whale",
                   [](QTreeView& list) {
                     EXPECT_EQ(list.currentIndex().row(), 0);
                     EXPECT_LT(list.model()->rowCount(), 600);
                     list.setCurrentIndex(list.model()->index(90, 0));
                     EXPECT_GT(list.verticalScrollBar()->value(), 0);
                   }),
            (QList<int>{1000, 90, 1}));
  EXPECT_EQ(rowsOf("walrus", [](QTreeView& list) { EXPECT_FALSE(list.currentIndex().isValid()); }),
            (QList<int>{1, 0, 1}))
      << "the first row is the current one as soon as it comes";
}

}  // namespace
}  // namespace velra
