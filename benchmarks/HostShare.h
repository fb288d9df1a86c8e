// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra::bench {

/// How much of a virtual machine's processors its host gave to others. What two threads do at once
/// suffers from that more than what one does, so that even a ratio within one run is worse.
class HostShare {
 public:
  HostShare() : begin_(now()) {}

  /// Prints the percentage since this was made, if there is any.
  void print() const;

 private:
  struct Ticks {
    double all = 0;
    double others = 0;
  };

  /// Of all processors since the machine began; nothing where the system does not tell.
  static Ticks now();

  Ticks begin_;
};

}  // namespace velra::bench
