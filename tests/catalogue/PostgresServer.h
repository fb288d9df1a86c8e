// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "support/TemporaryFolder.h"

namespace velra::test {

/// A PostgreSQL server of its own in a temporary folder, without a network, for as long as it
/// lives. Where none is installed there is no address.
class PostgresServer {
 public:
  PostgresServer() {
    for (const auto& version :
         std::filesystem::directory_iterator("/usr/lib/postgresql", failed_)) {
      programs_ = version.path() / "bin";
    }
    if (programs_.empty()) return;
    std::filesystem::create_directories(place_);
    if (::geteuid() == 0) {  // the server refuses to run as the superuser
      as_ = "runuser -u postgres -- ";
      run("chmod 711 '" + folder_.path() + "' && chown postgres '" + place_ + "'");
    }
    const std::string data = " -D '" + place_ + "/data' ";
    started_ = run("cd / && " + as_ + programs_ + "/initdb -A trust -U velra -E UTF8" + data) &&
               run("cd / && " + as_ + programs_ + "/pg_ctl" + data + "-w -l '" + place_ +
                   "/log' -o \"-F -k '" + place_ + "' -c listen_addresses=''\" start");
  }
  ~PostgresServer() {
    if (started_) {
      run("cd / && " + as_ + programs_ + "/pg_ctl -D '" + place_ + "/data' -m immediate stop");
    }
  }
  PostgresServer(const PostgresServer&) = delete;
  PostgresServer& operator=(const PostgresServer&) = delete;

  bool installed() const { return !programs_.empty(); }
  /// "" when it could not be started.
  std::string address() const {
    return started_ ? "postgresql://velra@/postgres?host=" + encoded(place_) : std::string();
  }

 private:
  static bool run(const std::string& command) {
    return std::system(("(" + command + ") > /dev/null 2>&1").c_str()) == 0;
  }
  static std::string encoded(const std::string& path) {
    std::string text;
    for (const char c : path) text += c == ' ' ? "%20" : std::string(1, c);
    return text;
  }

  const TemporaryFolder folder_;
  const std::string place_ = folder_ / "server";
  std::error_code failed_;
  std::string programs_;
  std::string as_;
  bool started_ = false;
};

}  // namespace velra::test
