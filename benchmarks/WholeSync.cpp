// SPDX-License-Identifier: GPL-3.0-or-later
#include "WholeSync.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>

namespace velra::bench {

namespace {

std::atomic<bool> whole{false};

}  // namespace

WholeSync::WholeSync() {
  whole = true;
}

WholeSync::~WholeSync() {
  whole = false;
}

// In place of the system's, for all that this program calls.
extern "C" int fsync(int file) {
  return static_cast<int>(::syscall(whole ? SYS_syncfs : SYS_fsync, file));
}

}  // namespace velra::bench
