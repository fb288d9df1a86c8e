// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/RunTimeError.h"

namespace velra::test {

/// The number of the run-time error that an action ends in; 0 when it ends well.
template <class Action>
int errorOf(const Action& action) {
  try {
    action();
    return 0;
  } catch (const RunTimeError& error) {
    return error.number();
  }
}

}  // namespace velra::test
