// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

#include "faults/Runs.h"

namespace {

int run(const std::string& what, int count) {
  if (what == "calls") return velra::test::runFaults(count);
  if (what == "kills") return velra::test::runKills(count);
  if (what == "model") return velra::test::runModel(count);
  if (what == "openings") return velra::test::runOpenings(count);
  std::fputs("usage: velra_faults calls|kills|model|openings COUNT\n", stderr);
  return 1;
}

}  // namespace

int main(int argc, char** argv) try {
  return run(argc == 3 ? argv[1] : "", argc == 3 ? std::atoi(argv[2]) : 0) == 0 ? 0 : 1;
} catch (const std::exception& error) {
  std::fputs(error.what(), stderr);
  return 1;
}
