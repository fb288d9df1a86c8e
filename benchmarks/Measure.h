// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace velra::bench {

/// One line of the report: what was measured and what it may be at most.
struct Measure {
  std::string name;
  double value = 0;
  std::string unit;
  double budget = 0;

  bool good() const { return value <= budget; }
};

/// Many times in milliseconds of the same action.
class Times {
 public:
  void take(const std::function<void()>& action);
  /// The processor time of this thread in place of the clock's: what others do on the machine does
  /// not count. For work that waits for nothing.
  void takeWork(const std::function<void()>& action);
  void add(double milliseconds) { values_.push_back(milliseconds); }
  /// The same actions were taken again: the shorter time of each counts.
  void again(const Times& other);
  std::size_t count() const { return values_.size(); }

  /// The value below which a share (0 to 1) of them lies; 0 when there are none.
  double at(double share) const;
  double p95() const { return at(0.95); }

 private:
  std::vector<double> values_;
};

/// Prints the lines, and tells whether all kept their budgets.
bool report(const std::string& title, const std::vector<Measure>& measures);

/// Bytes that are allocated at present.
double heapBytes();

/// Resident memory of this process in megabytes.
double residentMegabytes();

/// Processor time of this process in seconds.
double processorSeconds();

}  // namespace velra::bench
