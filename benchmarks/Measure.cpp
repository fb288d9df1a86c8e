// SPDX-License-Identifier: GPL-3.0-or-later
#include "Measure.h"

#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <fstream>

namespace velra::bench {

void Times::take(const std::function<void()>& action) {
  const auto start = std::chrono::steady_clock::now();
  action();
  const std::chrono::duration<double, std::milli> spent = std::chrono::steady_clock::now() - start;
  add(spent.count());
}

void Times::takeWork(const std::function<void()>& action) {
  const auto now = [] {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
  };
  const double start = now();
  action();
  add(now() - start);
}

void Times::again(const Times& other) {
  if (values_.empty()) values_ = other.values_;
  for (std::size_t i = 0; i < std::min(count(), other.count()); ++i) {
    values_[i] = std::min(values_[i], other.values_[i]);
  }
}

double Times::at(double share) const {
  if (values_.empty()) return 0;
  std::vector<double> sorted = values_;
  std::sort(sorted.begin(), sorted.end());
  const auto last = static_cast<double>(sorted.size() - 1);
  return sorted[static_cast<std::size_t>(std::lround(share * last))];
}

bool report(const std::string& title, const std::vector<Measure>& measures) {
  bool good = true;
  if (!measures.empty()) std::printf("%s\n", title.c_str());
  for (const Measure& measure : measures) {
    std::printf("  %-52s %8.2f %-4s of %6.1f  %s\n", measure.name.c_str(), measure.value,
                measure.unit.c_str(), measure.budget, measure.good() ? "good" : "OVER");
    good = good && measure.good();
  }
  return good;
}

double heapBytes() {
  const struct mallinfo2 info = ::mallinfo2();
  return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
}

double residentMegabytes() {
  std::ifstream file("/proc/self/statm");
  double total = 0;
  double resident = 0;
  file >> total >> resident;
  return resident * static_cast<double>(::sysconf(_SC_PAGESIZE)) / 1e6;
}

double processorSeconds() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

}  // namespace velra::bench
