// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/QtUserInterface.h"

#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <future>

#include "base/RunTimeError.h"
#include "support/ErrorOf.h"
#include "support/TemporaryFolder.h"
#include "widgets/ModalAnswer.h"
#include "widgets/dialogs/FileFilters.h"

namespace velra {
namespace {

using test::whenModal;

void click(QWidget& window, const char* name) {
  auto* button = window.findChild<QPushButton*>(QLatin1String(name));
  ASSERT_NE(button, nullptr) << name;
  button->click();
}

TEST(FileFilters, PairsBecomeTheFormOfTheToolkit) {
  const struct {
    const char *pairs, *filter;
  } rows[] = {
      {"Video Files (*.avi;*.mpeg)|*.avi;*.mpeg|", "Video Files (*.avi *.mpeg)"},
      {"XML Files (*.xml)|*.xml|All Files Files (*.*)|*.*",
       "XML Files (*.xml);;All Files Files (*)"},
      {"Films|*.mpg", "Films (*.mpg)"},
      {"", ""},
  };
  for (const auto& row : rows) EXPECT_EQ(fileDialogFilter(row.pairs), QLatin1String(row.filter));
}

TEST(QtUserInterface, BoxesShowTheirTextAsItStands) {
  QtUserInterface ui;
  const struct {
    BoxKind kind;
    QMessageBox::Icon icon;
  } rows[] = {{BoxKind::Plain, QMessageBox::NoIcon},
              {BoxKind::Exclamation, QMessageBox::Warning},
              {BoxKind::Critical, QMessageBox::Critical}};
  for (const auto& row : rows) {
    int seen = 0;
    whenModal([&](QWidget& window) {
      const auto& box = dynamic_cast<QMessageBox&>(window);
      EXPECT_EQ(box.windowTitle(), QStringLiteral("velra"));
      EXPECT_EQ(box.text(), QStringLiteral("<b>a & b</b>"));
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      EXPECT_EQ(box.icon(), row.icon);
      ++seen;
      click(window, "cmdOK");
    });
    ui.messageBox("<b>a & b</b>", row.kind);
    EXPECT_EQ(seen, 1);
  }
}

TEST(QtUserInterface, AnswersAreTheButtonsAndClosingIsTheCautiousOne) {
  QtUserInterface ui;
  const struct {
    const char* button;
    Answer answer;
  } rows[] = {{"cmdYes", Answer::Yes},
              {"cmdNo", Answer::No},
              {"cmdCancel", Answer::Cancel},
              {nullptr, Answer::Cancel}};
  for (const auto& row : rows) {
    whenModal([&](QWidget& box) { row.button ? click(box, row.button) : void(box.close()); });
    EXPECT_EQ(ui.askYesNoCancel("Save?"), row.answer);
  }
  whenModal([](QWidget& box) { click(box, "cmdYes"); });
  EXPECT_TRUE(ui.askYesNo("Sure?"));
  whenModal([](QWidget& box) { box.close(); });
  EXPECT_FALSE(ui.askYesNo("Sure?"));
}

TEST(QtUserInterface, InputBoxGivesTheTextOrNothing) {
  QtUserInterface ui;
  for (const bool accept : {true, false}) {
    whenModal([&](QWidget& box) {
      EXPECT_EQ(box.windowTitle(), QStringLiteral("Version Title"));
      auto* line = box.findChild<QLineEdit*>(QStringLiteral("txtInput"));
      EXPECT_EQ(line->text(), QStringLiteral("old"));
      line->setText(QStringLiteral("Fassung \u00e4"));
      click(box, accept ? "cmdOK" : "cmdCancel");
    });
    EXPECT_EQ(ui.inputBox("Title:", "Version Title", "old"), accept ? "Fassung \xc3\xa4" : "");
  }
}

TEST(QtUserInterface, FileDialogsProposeAndRemember) {
  const test::TemporaryFolder folder;
  folder.write("film.xml", "x");
  QtUserInterface ui;
  whenModal([&](QWidget& window) {
    auto& dialog = dynamic_cast<QFileDialog&>(window);
    EXPECT_EQ(dialog.directory().path().toStdString(), folder.path());
    auto* name = dialog.findChild<QLineEdit*>();
    EXPECT_EQ(name->text(), QStringLiteral("proposed"));
    name->setText(QStringLiteral("new"));
    static_cast<QDialog&>(dialog).accept();
  });
  EXPECT_EQ(ui.saveFileDialog("Save As", "All Files (*.xml)|*.xml", folder / "proposed"),
            folder / "new.xml");
  whenModal([&](QWidget& window) {
    auto& dialog = dynamic_cast<QFileDialog&>(window);
    EXPECT_EQ(dialog.directory().path().toStdString(), folder.path());
    dialog.reject();
  });
  EXPECT_EQ(ui.openFileDialog("Open", "XML Files (*.xml)|*.xml"), std::nullopt);
}

TEST(QtUserInterface, FiltersThatAreFormatsGiveTheEnding) {
  const test::TemporaryFolder folder;
  QtUserInterface ui;
  whenModal([&](QWidget& window) {
    auto& dialog = dynamic_cast<QFileDialog&>(window);
    dialog.selectNameFilter(dialog.nameFilters()[1]);
    Q_EMIT dialog.filterSelected(dialog.nameFilters()[1]);
    dialog.findChild<QLineEdit*>()->setText(QStringLiteral("new"));
    static_cast<QDialog&>(dialog).accept();
  });
  const auto chosen = ui.saveTypedFile("Export As", "A (*.a)|*.a|B (*.b.c)|*.b.c|", folder / "x");
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->path, folder / "new.b.c");
  EXPECT_EQ(chosen->filter, 1U);
}

TEST(QtUserInterface, WaitsForAMovieWithWindowsThatAnswerUntilAPersonCancels) {
  QtUserInterface ui;
  std::promise<void> seen;
  std::stop_token given;
  QTimer look;
  look.callOnTimeout([&] {
    QWidget* box = QApplication::activeModalWidget();
    if (!box) return;
    look.stop();
    EXPECT_FALSE(given.stop_requested());
    QTest::keyClick(box, Qt::Key_Escape);
    EXPECT_TRUE(given.stop_requested());
    EXPECT_TRUE(box->isVisible()) << "it stays until the work is done";
    seen.set_value();
  });
  look.start(5);
  EXPECT_FALSE(ui.openMovie([&](const std::stop_token& stop) {
    given = stop;
    seen.get_future().wait();
  }));
  EXPECT_TRUE(ui.openMovie([](const std::stop_token&) {}));
  const auto failing = [&](const std::stop_token&) { raise(kPathNotFound); };
  EXPECT_EQ(test::errorOf([&] { ui.openMovie(failing); }), kPathNotFound);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace velra
