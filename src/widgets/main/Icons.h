// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QString>

namespace velra {

/// The program's own icon of that name; an empty one when there is none.
QIcon ownIcon(const QString& name);

/// The path of an icon's picture inside the program.
QString ownIconPath(const QString& name);

}  // namespace velra
