// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialogButtonBox>

namespace velra {

class ApplicationModule;

/// The buttons OK and Cancel of a dialog, with the names that the dialog has for them.
class DialogButtons : public QDialogButtonBox {
 public:
  DialogButtons(const ApplicationModule& app, const char* okName, const char* cancelName,
                QWidget* parent);
};

}  // namespace velra
