// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/dialogs/ConnectionDialogWindow.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "app/ApplicationModule.h"
#include "widgets/QtText.h"
#include "widgets/dialogs/DialogButtons.h"

namespace velra {

namespace {

constexpr int kSettingWidth = 320;  // logical pixels

}  // namespace

ConnectionDialogWindow::ConnectionDialogWindow(const ApplicationModule& app,
                                               ConnectionDialog& dialog, QWidget* owner)
    : QDialog(owner), dialog_(dialog) {
  setObjectName(QStringLiteral("ConnectionDialog"));
  setWindowTitle(QStringLiteral("Connection Parameters"));
  auto* column = new QVBoxLayout(this);
  auto* rows = new QFormLayout;
  column->addLayout(rows);
  for (std::size_t box = 0; box < ConnectionDialog::kBoxes.size(); ++box) {
    addBox(app, static_cast<ConnectionDialog::Box>(box), *rows);
  }
  column->addStretch();
  auto* buttons = new DialogButtons(app, "OKButton", "CancelButton", this);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { dialog_.OKButton_Click(); });
  connect(buttons, &QDialogButtonBox::rejected, this, [this] { dialog_.CancelButton_Click(); });
  column->addWidget(buttons);
  dialog_.onUnload = [this] { done(Accepted); };
}

ConnectionDialogWindow::~ConnectionDialogWindow() {
  dialog_.onUnload = nullptr;
}

void ConnectionDialogWindow::addBox(const ApplicationModule& app, ConnectionDialog::Box box,
                                    QFormLayout& rows) {
  const ConnectionDialog::BoxTexts& texts = ConnectionDialog::kBoxes[static_cast<std::size_t>(box)];
  auto* edit = new QLineEdit(toQString(dialog_.text(box)), this);
  edit->setObjectName(QLatin1String(texts.name));
  edit->setToolTip(plainToolTip(app.LoadResString(texts.toolTip)));
  edit->setMinimumWidth(kSettingWidth);
  rows.addRow(toQString(app.LoadResString(texts.caption)), edit);
  connect(edit, &QLineEdit::textChanged, this, [this, box, edit] { changed(box, *edit); });
}

void ConnectionDialogWindow::changed(ConnectionDialog::Box box, QLineEdit& edit) {
  dialog_.change(box, fromQString(edit.text()));
  const QString kept = toQString(dialog_.text(box));
  if (edit.text() == kept) return;
  const QSignalBlocker quiet(edit);
  edit.setText(kept);
}

void ConnectionDialogWindow::reject() {
  dialog_.CancelButton_Click();
}

}  // namespace velra
