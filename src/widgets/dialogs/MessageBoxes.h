// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMessageBox>

class QDialogButtonBox;

namespace velra {

/// A box with the program's title that takes its text as it stands, named "msgBox" with buttons
/// "cmdOK", "cmdYes", "cmdNo" and "cmdCancel". `escape` is the answer when it is closed without
/// one. Waits for the answer.
QMessageBox::StandardButton showMessageBox(QWidget* owner, QMessageBox::Icon icon,
                                           const QString& text,
                                           QMessageBox::StandardButtons buttons,
                                           QMessageBox::StandardButton escape);

/// Names the buttons of a box or dialog for tests and for people who search by name.
void nameButtons(QDialogButtonBox& buttons);

}  // namespace velra
