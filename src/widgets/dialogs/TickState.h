// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/Texts.h"

namespace velra {

/// How a tick stands, for people who hear the window. Screen readers say nothing when the tick of a
/// row changes, and in the rows of a table never how it stands.
inline QString tickState(Qt::CheckState tick) {
  return tick == Qt::Checked ? Texts::tr("checked") : Texts::tr("not checked");
}

}  // namespace velra
