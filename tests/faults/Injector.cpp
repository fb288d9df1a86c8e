// SPDX-License-Identifier: GPL-3.0-or-later
#include "faults/Injector.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace velra::test {
namespace {

Fault theFault;
std::atomic<bool> isArmed{false};
std::atomic<int> theCalls{0};

constexpr int kOwnStreams = 2;  // what is said there is no file of ours

// Does a call, or what is to become of it instead. `half` does a part of it.
template <class Call, class Half>
auto fated(Call call, Half half) -> decltype(call()) {
  if (!isArmed) return call();
  const int number = ++theCalls;
  const bool lasting = theFault.mishap == Mishap::ErrorsFromThere;
  if (lasting ? number < theFault.number : number != theFault.number) return call();
  switch (theFault.mishap) {
    case Mishap::Error:
    case Mishap::ErrorsFromThere:
      errno = theFault.error;
      return -1;
    case Mishap::Short:
      return half();
    case Mishap::KilledMidway:
      half();
      ::raise(SIGKILL);
      break;
    case Mishap::KilledBefore:
      ::raise(SIGKILL);
      break;
    case Mishap::KilledAfter:
      call();
      ::raise(SIGKILL);
      break;
    case Mishap::None:
      break;
  }
  return call();
}

template <class Call>
auto fated(Call call) {
  return fated(call, call);
}

template <class Function>
Function* systemOwn(const char* name) {
  return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

}  // namespace

std::vector<Fault> faultsAt(int number) {
  std::vector<Fault> faults;
  for (const int error : {ENOSPC, EIO, EACCES, EDQUOT}) {
    faults.push_back({Mishap::Error, error, number});
  }
  faults.push_back({Mishap::ErrorsFromThere, ENOSPC, number});
  for (const Mishap mishap :
       {Mishap::Short, Mishap::KilledBefore, Mishap::KilledAfter, Mishap::KilledMidway}) {
    faults.push_back({mishap, 0, number});
  }
  return faults;
}

std::string nameOf(const Fault& fault) {
  const char* names[] = {"none",          "error",        "errors from there", "a short write",
                         "killed before", "killed after", "killed midway"};
  std::string name = "call " + std::to_string(fault.number) + ": ";
  name += names[static_cast<int>(fault.mishap)];
  return fault.error ? name + " (" + std::strerror(fault.error) + ")" : name;
}

void arm(const Fault& fault) {
  theFault = fault;
  theCalls = 0;
  isArmed = true;
}

int disarm() {
  isArmed = false;
  return theCalls;
}

}  // namespace velra::test

// NOLINTBEGIN: names and lists of parameters are the system's own
using velra::test::fated;
using velra::test::systemOwn;

extern "C" {

ssize_t write(int file, const void* bytes, size_t size) {
  static auto* const own = systemOwn<decltype(write)>("write");
  if (file <= velra::test::kOwnStreams) return own(file, bytes, size);
  return fated([&] { return own(file, bytes, size); },
               [&] { return own(file, bytes, (size + 1) / 2); });
}

ssize_t pwrite(int file, const void* bytes, size_t size, off_t place) {
  static auto* const own = systemOwn<decltype(pwrite)>("pwrite");
  return fated([&] { return own(file, bytes, size, place); },
               [&] { return own(file, bytes, (size + 1) / 2, place); });
}

ssize_t pwrite64(int file, const void* bytes, size_t size, off64_t place) {
  return pwrite(file, bytes, size, place);
}

int open(const char* path, int flags, ...) {
  static auto* const own = systemOwn<int(const char*, int, ...)>("open");
  std::va_list rest;
  va_start(rest, flags);
  const mode_t mode = flags & O_CREAT ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  const auto call = [&] { return own(path, flags, mode); };
  return flags & O_CREAT ? fated(call) : call();
}

int open64(const char* path, int flags, ...) {
  std::va_list rest;
  va_start(rest, flags);
  const mode_t mode = flags & O_CREAT ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  return open(path, flags, mode);
}

#define VELRA_FATED(name, parameters, arguments, specifier)    \
  int name parameters specifier {                              \
    static auto* const own = systemOwn<int parameters>(#name); \
    return fated([&] { return own arguments; });               \
  }

VELRA_FATED(ftruncate, (int file, off_t size), (file, size), noexcept)
VELRA_FATED(ftruncate64, (int file, off64_t size), (file, size), noexcept)
VELRA_FATED(fallocate, (int file, int mode, off_t from, off_t size), (file, mode, from, size), )
VELRA_FATED(fsync, (int file), (file), )
VELRA_FATED(fdatasync, (int file), (file), )
VELRA_FATED(syncfs, (int file), (file), noexcept)
VELRA_FATED(mkdir, (const char* path, mode_t mode), (path, mode), noexcept)
VELRA_FATED(rmdir, (const char* path), (path), noexcept)
VELRA_FATED(unlink, (const char* path), (path), noexcept)
VELRA_FATED(rename, (const char* from, const char* to), (from, to), noexcept)
VELRA_FATED(linkat, (int in, const char* from, int out, const char* to, int flags),
            (in, from, out, to, flags), noexcept)
VELRA_FATED(renameat2, (int in, const char* from, int out, const char* to, unsigned int flags),
            (in, from, out, to, flags), noexcept)

}  // extern "C"
// NOLINTEND
