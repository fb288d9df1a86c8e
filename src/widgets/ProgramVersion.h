// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

namespace velra {

/// "Version " and the three numbers of the program's version, joined by points.
inline QString programVersion() {
  return QStringLiteral("Version ") + QCoreApplication::applicationVersion();
}

}  // namespace velra
