// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/QtUserInterface.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <future>

#include "widgets/BusyCursor.h"
#include "widgets/QtText.h"
#include "widgets/Texts.h"
#include "widgets/dialogs/FileFilters.h"
#include "widgets/dialogs/MessageBoxes.h"
#include "widgets/dialogs/ProgressBox.h"
#include "widgets/dialogs/WaitingBox.h"

namespace velra {

namespace {

// Here where the machine gives no further thread.
constexpr std::launch kAside = std::launch::async | std::launch::deferred;

QMessageBox::Icon iconOf(BoxKind kind) {
  switch (kind) {
    case BoxKind::Exclamation:
      return QMessageBox::Warning;
    case BoxKind::Critical:
      return QMessageBox::Critical;
    case BoxKind::Plain:
      break;
  }
  return QMessageBox::NoIcon;
}

void nameParts(QInputDialog& dialog) {
  static_cast<void>(dialog.sizeHint());  // makes the parts, which come late
  dialog.setObjectName(QStringLiteral("inputBox"));
  dialog.findChild<QLineEdit*>()->setObjectName(QStringLiteral("txtInput"));
  dialog.findChild<QLabel*>()->setTextFormat(Qt::PlainText);
  nameButtons(*dialog.findChild<QDialogButtonBox*>());
}

}  // namespace

void QtUserInterface::setMainWindow(QWidget* window) {
  mainWindow_ = window;
}

QWidget* QtUserInterface::owner() const {
  QWidget* modal = QApplication::activeModalWidget();
  if (!modal) return mainWindow_.data();
  // It may have a window of its own before it, in which the person is.
  QWidget* const active = QApplication::activeWindow();
  for (const QWidget* window = active; window; window = window->parentWidget()) {
    if (window == modal) return active;
  }
  return modal;
}

void QtUserInterface::messageBox(const std::string& text, BoxKind kind) {
  const QuestionCursor cursor;
  showMessageBox(owner(), iconOf(kind), toQString(text), QMessageBox::Ok, QMessageBox::Ok);
}

bool QtUserInterface::askOkCancel(const std::string& text) {
  const QuestionCursor cursor;
  return showMessageBox(owner(), QMessageBox::NoIcon, toQString(text),
                        QMessageBox::Ok | QMessageBox::Cancel,
                        QMessageBox::Cancel) == QMessageBox::Ok;
}

bool QtUserInterface::askYesNo(const std::string& text) {
  const QuestionCursor cursor;
  return showMessageBox(owner(), QMessageBox::Question, toQString(text),
                        QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

Answer QtUserInterface::askYesNoCancel(const std::string& text) {
  const QuestionCursor cursor;
  switch (showMessageBox(owner(), QMessageBox::Question, toQString(text),
                         QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                         QMessageBox::Cancel)) {
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    default:
      return Answer::Cancel;
  }
}

std::string QtUserInterface::inputBox(const std::string& prompt, const std::string& title,
                                      const std::string& proposed) {
  const QuestionCursor cursor;
  QInputDialog dialog(owner());
  dialog.setWindowTitle(toQString(title));
  dialog.setLabelText(toQString(prompt));
  dialog.setTextValue(toQString(proposed));
  nameParts(dialog);
  if (dialog.exec() != QDialog::Accepted) return {};
  return fromQString(dialog.textValue());
}

std::optional<std::string> QtUserInterface::chosenFile(QFileDialog& dialog) {
  const QuestionCursor cursor;
  dialog.setObjectName(QStringLiteral("dlgCommonDialog"));
  labelLists(dialog);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  const QString file = dialog.selectedFiles().constFirst();
  folder_ = QFileInfo(file).absolutePath();
  return pathFromQString(file);
}

std::optional<std::string> QtUserInterface::openFileDialog(const std::string& title,
                                                           const std::string& filter) {
  QFileDialog dialog(owner(), toQString(title), folder_, fileDialogFilter(filter));
  dialog.setFileMode(QFileDialog::ExistingFile);
  return chosenFile(dialog);
}

std::optional<std::string> QtUserInterface::saveFileDialog(const std::string& title,
                                                           const std::string& filter,
                                                           const std::string& proposed) {
  const QFileInfo wanted(pathToQString(proposed));
  QFileDialog dialog(owner(), toQString(title), wanted.absolutePath(), fileDialogFilter(filter));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("xml"));
  dialog.selectFile(wanted.fileName());
  return chosenFile(dialog);
}

std::optional<ChosenFile> QtUserInterface::typedFile(QFileDialog& dialog) {
  const auto path = chosenFile(dialog);
  if (!path) return std::nullopt;
  const qsizetype filter = dialog.nameFilters().indexOf(dialog.selectedNameFilter());
  return ChosenFile{*path, static_cast<std::size_t>(std::max<qsizetype>(filter, 0))};
}

std::optional<ChosenFile> QtUserInterface::openTypedFile(const std::string& title,
                                                         const std::string& filter) {
  QFileDialog dialog(owner(), toQString(title), folder_, fileDialogFilter(filter));
  dialog.setFileMode(QFileDialog::ExistingFile);
  return typedFile(dialog);
}

// A name without an ending gets that of the filter before the dialog asks about it.
std::optional<ChosenFile> QtUserInterface::saveTypedFile(const std::string& title,
                                                         const std::string& filter,
                                                         const std::string& proposed) {
  const QFileInfo wanted(pathToQString(proposed));
  QFileDialog dialog(owner(), toQString(title), wanted.absolutePath(), fileDialogFilter(filter));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  const auto takeSuffix = [&](const QString& chosen) { dialog.setDefaultSuffix(suffixOf(chosen)); };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, takeSuffix);
  takeSuffix(dialog.selectedNameFilter());
  dialog.selectFile(wanted.fileName());
  return typedFile(dialog);
}

std::optional<std::string> QtUserInterface::folderDialog(const std::string& title,
                                                         const std::string& proposed) {
  QFileDialog dialog(owner(), toQString(title), pathToQString(proposed));
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  return chosenFile(dialog);
}

void QtUserInterface::beep() {
  QApplication::beep();
}

std::unique_ptr<BusySign> QtUserInterface::showBusy() {
  return std::make_unique<BusyCursor>();
}

std::unique_ptr<ProgressSign> QtUserInterface::showProgress(const std::string& sentence) {
  return std::make_unique<ProgressBox>(toQString(sentence), owner());
}

void QtUserInterface::workAside(const std::string& sentence, const std::function<void()>& work) {
  waitFor(sentence, std::async(kAside, work), nullptr);
}

bool QtUserInterface::workAtLength(const std::string& sentence, const LongWork& work) {
  std::stop_source stop;
  std::atomic<double> share{0};
  const auto tell = [&](double done) { share = done; };
  waitFor(sentence, std::async(kAside, [&] { work(stop.get_token(), tell); }), &stop, &share);
  return !stop.stop_requested();
}

bool QtUserInterface::openMovie(const std::function<void(const std::stop_token&)>& work) {
  std::stop_source stop;
  waitFor(fromQString(Texts::tr("The movie is being read.")),
          std::async(kAside, work, stop.get_token()), &stop);
  return !stop.stop_requested();
}

void QtUserInterface::waitFor(const std::string& sentence, std::future<void> done,
                              std::stop_source* stop, const std::atomic<double>* share) {
  const BusyCursor cursor;
  if (!isDoneUnnoticed(done)) WaitingBox(toQString(sentence), owner(), stop).showUntil(done, share);
  done.get();
}

}  // namespace velra
