// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace velra::test {

/// What goes wrong with a system call that changes something on the disk.
enum class Mishap { None, Error, ErrorsFromThere, Short, KilledBefore, KilledAfter, KilledMidway };

struct Fault {
  Mishap mishap = Mishap::None;
  int error = 0;   // the system's number
  int number = 0;  // of the call, from 1
};

/// All mishaps for one call.
std::vector<Fault> faultsAt(int number);
std::string nameOf(const Fault& fault);

/// From now on the calls of this process, by whatever library, are counted, and the one of the
/// number meets its fate. Its functions stand in this program before those of the system.
void arm(const Fault& fault);
/// How many there were.
int disarm();

}  // namespace velra::test
