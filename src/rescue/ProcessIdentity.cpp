// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/ProcessIdentity.h"

#include <unistd.h>

#include <array>
#include <fstream>
#include <sstream>

namespace velra {

namespace {

std::string firstLine(const std::string& path) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  return line;
}

std::string hostName() {
  std::array<char, 256> name{};
  return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

std::string bootIdentity() {
  return firstLine("/proc/sys/kernel/random/boot_id");
}

// The time at which a process started, in ticks since the boot; "" when there is no such process.
// The name of the program, which may hold blanks, ends with the last bracket.
std::string startOf(const std::string& process) {
  const std::string line = firstLine("/proc/" + process + "/stat");
  const auto bracket = line.rfind(')');
  if (bracket == std::string::npos) return {};
  std::istringstream behind(line.substr(bracket + 1));
  constexpr int kStartAfterName = 20;
  std::string word;
  behind >> word;
  if (word == "Z") return {};  // it has ended, and nobody has asked how
  for (int i = 1; i < kStartAfterName; ++i) behind >> word;
  return word;
}

}  // namespace

std::string processIdentity() {
  const std::string process = std::to_string(::getpid());
  return hostName() + ' ' + bootIdentity() + ' ' + process + ' ' + startOf(process);
}

bool mayBeRunning(const std::string& identity) {
  std::istringstream words(identity);
  std::string host;
  std::string boot;
  std::string process;
  std::string start;
  words >> host >> boot >> process >> start;
  if (host != hostName()) return true;
  return boot == bootIdentity() && !start.empty() && startOf(process) == start;
}

}  // namespace velra
