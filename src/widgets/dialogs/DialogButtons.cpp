// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/dialogs/DialogButtons.h"

#include <QPushButton>

#include "app/ApplicationModule.h"
#include "widgets/QtText.h"

namespace velra {

DialogButtons::DialogButtons(const ApplicationModule& app, const char* okName,
                             const char* cancelName, QWidget* parent)
    : QDialogButtonBox(parent) {
  QPushButton* ok = addButton(toQString(app.LoadResString(Message::OK)), AcceptRole);
  ok->setObjectName(QLatin1String(okName));
  ok->setDefault(true);
  QPushButton* cancel = addButton(toQString(app.LoadResString(Message::Cancel)), RejectRole);
  cancel->setObjectName(QLatin1String(cancelName));
}

}  // namespace velra
