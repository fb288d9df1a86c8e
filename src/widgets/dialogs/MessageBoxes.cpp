// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/dialogs/MessageBoxes.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QPushButton>

namespace velra {

namespace {

const struct {
  QDialogButtonBox::StandardButton button;
  const char* name;
} kButtonNames[] = {{QDialogButtonBox::Ok, "cmdOK"},
                    {QDialogButtonBox::Cancel, "cmdCancel"},
                    {QDialogButtonBox::Yes, "cmdYes"},
                    {QDialogButtonBox::No, "cmdNo"}};

}  // namespace

void nameButtons(QDialogButtonBox& buttons) {
  for (const auto& row : kButtonNames) {
    if (QPushButton* button = buttons.button(row.button)) {
      button->setObjectName(QLatin1String(row.name));
    }
  }
}

QMessageBox::StandardButton showMessageBox(QWidget* owner, QMessageBox::Icon icon,
                                           const QString& text,
                                           QMessageBox::StandardButtons buttons,
                                           QMessageBox::StandardButton escape) {
  QMessageBox box(icon, QCoreApplication::applicationName(), QString(), buttons, owner);
  box.setObjectName(QStringLiteral("msgBox"));
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  box.setEscapeButton(escape);
  nameButtons(*box.findChild<QDialogButtonBox*>());
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace velra
