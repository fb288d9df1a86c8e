// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <linux/capability.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace velra::test {

/// Makes every write beyond a size fail while it lives.
class SizeLimit {
 public:
  explicit SizeLimit(rlim_t bytes) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~SizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before_); }
  SizeLimit(const SizeLimit&) = delete;
  SizeLimit& operator=(const SizeLimit&) = delete;

 private:
  rlimit before_{};
};

/// Takes the powers of root away while it lives, so that the modes of files count.
class OrdinaryPerson {
 public:
  OrdinaryPerson() {
    ::syscall(SYS_capget, &head_, before_);
    __user_cap_data_struct without[2] = {before_[0], before_[1]};
    without[0].effective = without[1].effective = 0;
    ::syscall(SYS_capset, &head_, without);
  }
  ~OrdinaryPerson() { ::syscall(SYS_capset, &head_, before_); }
  OrdinaryPerson(const OrdinaryPerson&) = delete;
  OrdinaryPerson& operator=(const OrdinaryPerson&) = delete;

 private:
  __user_cap_header_struct head_{_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct before_[2] = {};
};

}  // namespace velra::test
