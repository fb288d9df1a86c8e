// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main/MainToolBar.h"

#include <QAction>
#include <QCursor>

#include "platform/UserInterface.h"
#include "widgets/main/Icons.h"
#include "widgets/main/MainCommands.h"
#include "widgets/main/MainFormWindow.h"

namespace velra {

MainToolBar::MainToolBar(MainFormWindow& window) : QToolBar(&window) {
  setObjectName(QStringLiteral("tbToolBar"));
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);  // nothing brings a hidden bar back
  for (const ToolButton& button : toolButtons()) {
    const QString toolTip = window.text(button.toolTip);
    QAction* action = addAction(ownIcon(QLatin1String(button.icon)), toolTip);
    action->setToolTip(toolTip);
    action->setObjectName(QStringLiteral("tbToolBar_") +
                          QString(QLatin1String(button.key)).remove(QLatin1Char(' ')));
    widgetForAction(action)->setObjectName(action->objectName());
    if (!button.literal) continue;
    connect(action, &QAction::triggered, this, [this, &window, &button, action] {
      window.ui().messageBox(button.literal);
      lower(*widgetForAction(action));
    });
  }
}

// The mouse leaves a button unheard while a box is open.
void MainToolBar::lower(QWidget& button) {
  const bool under = button.rect().contains(button.mapFromGlobal(QCursor::pos()));
  button.setAttribute(Qt::WA_UnderMouse, under);
  button.update();
}

}  // namespace velra
