// SPDX-License-Identifier: GPL-3.0-or-later
#include "HostShare.h"

#include <cstdio>
#include <fstream>
#include <string>

namespace velra::bench {

namespace {

// The first line of the file names them in this order; what comes behind is part of the first two.
constexpr int kKinds = 8;  // user, nice, system, idle, iowait, irq, softirq, steal

}  // namespace

HostShare::Ticks HostShare::now() {
  std::ifstream file("/proc/stat");
  std::string name;
  file >> name;
  Ticks ticks;
  for (int kind = 0; kind < kKinds && file >> ticks.others; ++kind) ticks.all += ticks.others;
  return ticks;
}

void HostShare::print() const {
  const Ticks end = now();
  const double all = end.all - begin_.all;
  const double others = end.others - begin_.others;
  if (all <= 0 || others <= 0) return;
  std::printf("  the host gave others %.1f %% of the processors meanwhile\n", 100 * others / all);
}

}  // namespace velra::bench
