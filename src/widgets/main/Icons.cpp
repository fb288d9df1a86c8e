// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main/Icons.h"

#include <QResource>

// Resources of a library are linked only where they are asked for, outside of any namespace.
static void linkIcons() {
  Q_INIT_RESOURCE(icons);
}

namespace velra {

QString ownIconPath(const QString& name) {
  linkIcons();
  return QStringLiteral(":/icons/") + name + QStringLiteral(".svg");
}

QIcon ownIcon(const QString& name) {
  return QIcon(ownIconPath(name));
}

}  // namespace velra
