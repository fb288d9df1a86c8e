// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/qnamespace.h>

namespace velra {

/// The modifiers as the rules count them: 1 for Shift, 2 for Control, 4 for Alt.
inline int shiftArgument(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) +
         (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) +
         (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

}  // namespace velra
