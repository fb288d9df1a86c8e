// SPDX-License-Identifier: GPL-3.0-or-later
#include "SlowShelf.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <thread>

namespace velra::bench {

namespace {

constexpr std::chrono::milliseconds kRoundTrip{1};

std::atomic<bool> slow{false};
std::atomic<long> trips{0};

void travel() {
  if (!slow) return;
  ++trips;
  std::this_thread::sleep_for(kRoundTrip);
}

}  // namespace

SlowShelf::SlowShelf() {
  trips = 0;
  slow = true;
}

SlowShelf::~SlowShelf() {
  slow = false;
}

double SlowShelf::inTurn() {
  return static_cast<double>(trips) * std::chrono::duration<double, std::milli>(kRoundTrip).count();
}

// In place of the system's, for all that this program calls.
extern "C" {

int open(const char* path, int flags, ...) {
  travel();
  __builtin_va_list more;
  __builtin_va_start(more, flags);
  const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? __builtin_va_arg(more, mode_t) : 0;
  __builtin_va_end(more);
  return static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

int stat(const char* path, struct stat* status) noexcept {
  travel();
  return static_cast<int>(::syscall(SYS_newfstatat, AT_FDCWD, path, status, 0));
}

ssize_t pread(int file, void* bytes, size_t size, off_t place) {
  travel();
  return ::syscall(SYS_pread64, file, bytes, size, place);
}

}  // extern "C"

}  // namespace velra::bench
