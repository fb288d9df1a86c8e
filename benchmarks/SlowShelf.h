// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra::bench {

/// While it lives, each opening, reading and asking for the state of a file in this process takes a
/// millisecond more, as over a network. There is one at a time.
class SlowShelf {
 public:
  SlowShelf();
  ~SlowShelf();
  SlowShelf(const SlowShelf&) = delete;
  SlowShelf& operator=(const SlowShelf&) = delete;

  /// What the calls so far would have taken one after another, in milliseconds.
  static double inTurn();
};

}  // namespace velra::bench
