// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

namespace velra {

/// By how much the stamps of a movie's container exceed the times of the movie: by one offset, or
/// by others from the places on where the stamps leap. All in seconds.
class StampLine {
 public:
  /// Nothing is known: the offset is not a number.
  StampLine() = default;

  /// One offset for the whole movie.
  explicit StampLine(double offset) : parts_{{0, offset}} {}

  /// From a time on, which is later than all before, there is another offset. The first one holds
  /// for what comes before it too.
  void add(double from, double offset);

  double offsetAt(double time) const;

  /// The time that a stamp belongs to. A stamp between two parts belongs to the nearer one, since
  /// sound may begin a little before its pictures. Sure only when `rises`.
  double timeOf(double stamp) const;

  bool leaps() const { return parts_.size() > 1; }

  /// True when no stamp occurs twice.
  bool rises() const;

  /// The same line where times begin later by so much.
  StampLine startingAt(double seconds) const;

 private:
  struct Part {
    double from;
    double offset;
  };

  std::vector<Part> parts_;
};

}  // namespace velra
