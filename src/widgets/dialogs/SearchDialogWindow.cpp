// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/dialogs/SearchDialogWindow.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "app/ApplicationModule.h"
#include "shell/SearchDialog.h"
#include "widgets/QtText.h"
#include "widgets/dialogs/DialogButtons.h"

namespace velra {

namespace {

constexpr int kTermWidth = 320;  // logical pixels

}  // namespace

SearchDialogWindow::SearchDialogWindow(const ApplicationModule& app, SearchDialog& dialog,
                                       QWidget* owner)
    : QDialog(owner), dialog_(dialog), Text1_(new QLineEdit(toQString(dialog.strText()), this)) {
  setObjectName(QStringLiteral("SearchDialog"));
  setWindowTitle(toQString(app.LoadResString(Message::SearchPrompt)));
  auto* column = new QVBoxLayout(this);
  auto* label = new QLabel(QStringLiteral("Find What:"), this);
  label->setObjectName(QStringLiteral("Label1"));
  label->setBuddy(Text1_);
  Text1_->setObjectName(QStringLiteral("Text1"));
  Text1_->setMinimumWidth(kTermWidth);
  Text1_->selectAll();
  column->addWidget(label);
  column->addWidget(Text1_);
  Check1_ = addCheck("Check1", "Mach Case", dialog.bMatchCase());
  Check2_ = addCheck("Check2", "Single Word", dialog.bSingleWord());
  column->addStretch();
  addButtons(app);
  dialog_.onUnload = [this] { done(Accepted); };
}

SearchDialogWindow::~SearchDialogWindow() {
  dialog_.onUnload = nullptr;
}

QCheckBox* SearchDialogWindow::addCheck(const char* name, const char* caption, bool ticked) {
  auto* check = new QCheckBox(QLatin1String(caption), this);
  check->setObjectName(QLatin1String(name));
  check->setChecked(ticked);
  layout()->addWidget(check);
  return check;
}

void SearchDialogWindow::addButtons(const ApplicationModule& app) {
  auto* buttons = new DialogButtons(app, "OKButt", "CancelButt", this);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { OKButt_Click(); });
  connect(buttons, &QDialogButtonBox::rejected, this, [this] { dialog_.CancelButt_Click(); });
  layout()->addWidget(buttons);
}

void SearchDialogWindow::OKButt_Click() {
  dialog_.OKButt_Click(fromQString(Text1_->text()), Check1_->isChecked(), Check2_->isChecked());
}

void SearchDialogWindow::reject() {
  dialog_.CancelButt_Click();
}

}  // namespace velra
