// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra {

/// Puts what the heap holds into memory pages of two megabytes, while nobody waits. A large
/// document lies in more pages of the usual size than the processor remembers, so that a step over
/// tens of thousands of objects waits for them; in large ones it takes two thirds to four fifths of
/// the time. Used by the thread whose heap it is, the first of the program.
class LargePages {
 public:
  LargePages();

  /// Gathers one page, in some 3 ms; true when there are more. Nothing happens where the system
  /// cannot do it, and with a small heap.
  bool gatherSome();

 private:
  char* begin_;  // of what the heap has got since
  char* next_;   // what is before is gathered
};

}  // namespace velra
