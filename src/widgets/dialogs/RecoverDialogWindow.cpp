// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/dialogs/RecoverDialogWindow.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/ApplicationModule.h"
#include "shell/RecoverDialog.h"
#include "widgets/QtText.h"

namespace velra {

namespace {

// In logical pixels, for letters as high as the last tells; for larger ones more.
constexpr QSize kRecoverSize(860, 360);
constexpr int kWidths[] = {230, 130, 70, 240, 160};  // of the columns
constexpr double kUsualHeight = 15;

double scaleOf(const QWidget& window) {
  return qMax(1.0, window.fontMetrics().height() / kUsualHeight);
}

}  // namespace

RecoverDialogWindow::RecoverDialogWindow(const ApplicationModule& app, RecoverDialog& dialog,
                                         QWidget* owner)
    : QDialog(owner), app_(app), dialog_(dialog), lvwKept_(new QTreeWidget(this)) {
  setObjectName(QStringLiteral("RecoverDialog"));
  setWindowTitle(titleFromCaption(app.LoadResString(Message::RecoverWork)));
  auto* column = new QVBoxLayout(this);
  column->addWidget(lvwKept_);
  makeList();
  makeButtons();
  fillList();
  resize(kRecoverSize * scaleOf(*this));
  dialog_.onUnload = [this] { done(Accepted); };
  dialog_.onRows = [this] { fillList(); };
}

RecoverDialogWindow::~RecoverDialogWindow() {
  dialog_.onUnload = nullptr;
  dialog_.onRows = nullptr;
}

void RecoverDialogWindow::makeList() {
  lvwKept_->setObjectName(QStringLiteral("lvwKept"));
  lvwKept_->setAccessibleName(windowTitle());
  lvwKept_->setRootIsDecorated(false);
  lvwKept_->setUniformRowHeights(true);
  lvwKept_->setAllColumnsShowFocus(true);
  QStringList headers;
  for (const Message header : RecoverDialog::kColumns) {
    headers << toQString(app_.LoadResString(header));
  }
  lvwKept_->setHeaderLabels(headers);
  int column = 0;
  for (const int width : kWidths) {
    lvwKept_->setColumnWidth(column++, qRound(width * scaleOf(*this)));
  }
  connect(lvwKept_, &QTreeWidget::currentItemChanged, this, [this] { openButtons(); });
}

void RecoverDialogWindow::fillList() {
  lvwKept_->clear();
  for (const RecoverDialog::Row& row : dialog_.rows()) {
    auto* item = new QTreeWidgetItem(lvwKept_);
    int column = 0;
    for (const std::string& text : row.texts) {
      item->setText(column, toQString(text));
      item->setToolTip(column++, plainToolTip(row.tip));
    }
  }
  lvwKept_->setCurrentItem(lvwKept_->topLevelItem(0));
  lvwKept_->setFocus();  // Return is not to drop the next one
  openButtons();
}

void RecoverDialogWindow::makeButtons() {
  auto* buttons = new QDialogButtonBox(this);
  cmdRecover_ = addButton(*buttons, "cmdRecover", Message::RecoverButton,
                          [this](std::size_t row) { dialog_.RecoverButton_Click(row); });
  cmdSaveAsFiles_ = addButton(*buttons, "cmdSaveAsFiles", Message::SaveAsFilesButton,
                              [this](std::size_t row) { dialog_.SaveAsFilesButton_Click(row); });
  cmdDrop_ = addButton(*buttons, "cmdDrop", Message::DropButton,
                       [this](std::size_t row) { dialog_.DropButton_Click(row); });
  QPushButton* close = buttons->addButton(toQString(app_.LoadResString(Message::Close)),
                                          QDialogButtonBox::RejectRole);
  close->setObjectName(QStringLiteral("cmdClose"));
  cmdRecover_->setDefault(true);
  connect(buttons, &QDialogButtonBox::rejected, this, &RecoverDialogWindow::reject);
  layout()->addWidget(buttons);
}

QPushButton* RecoverDialogWindow::addButton(QDialogButtonBox& buttons, const char* name,
                                            Message caption, const Click& click) {
  QPushButton* button =
      buttons.addButton(toQString(app_.LoadResString(caption)), QDialogButtonBox::ActionRole);
  button->setObjectName(QLatin1String(name));
  connect(button, &QPushButton::clicked, this, [this, click] { click(currentRow()); });
  return button;
}

std::size_t RecoverDialogWindow::currentRow() const {
  return static_cast<std::size_t>(lvwKept_->indexOfTopLevelItem(lvwKept_->currentItem()));
}

void RecoverDialogWindow::openButtons() {
  const auto& rows = dialog_.rows();
  const std::size_t row = currentRow();
  const bool any = row < rows.size();
  cmdRecover_->setEnabled(any && rows[row].canRecover);
  cmdSaveAsFiles_->setEnabled(any);
  cmdDrop_->setEnabled(any && rows[row].canDrop);
}

void RecoverDialogWindow::reject() {
  dialog_.CloseButton_Click();
}

}  // namespace velra
