// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "base/Paths.h"

namespace velra::test {

/// A new folder with a blank in its name, gone with everything in it at the end. The current folder
/// is put back too.
class TemporaryFolder {
 public:
  TemporaryFolder() : before_(currentFolder()) {
    std::string name = std::filesystem::temp_directory_path() / "velra test XXXXXX";
    path_ = ::mkdtemp(name.data());
  }
  ~TemporaryFolder() {
    changeCurrentFolder(before_);
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::string& path() const { return path_; }
  std::string operator/(const std::string& name) const { return path_ + "/" + name; }

  /// Writes a file, its folders included, and returns its path.
  std::string write(const std::string& name, const std::string& bytes) const {
    const std::filesystem::path file = path_ + "/" + name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
    return file;
  }
  std::string read(const std::string& name) const {
    std::ostringstream bytes;
    bytes << std::ifstream(path_ + "/" + name, std::ios::binary).rdbuf();
    return bytes.str();
  }
  /// Every file below the folder with its bytes.
  std::map<std::string, std::string> snapshot() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path_)) {
      if (!entry.is_regular_file()) continue;
      const std::string name = std::filesystem::relative(entry.path(), path_);
      files[name] = read(name);
    }
    return files;
  }

 private:
  std::string before_;
  std::string path_;
};

/// How the files of two snapshots differ: "+ name", "- name" or "* name".
inline std::vector<std::string> changedFiles(const std::map<std::string, std::string>& before,
                                             const std::map<std::string, std::string>& after) {
  std::vector<std::string> changes;
  for (const auto& [name, bytes] : before) {
    if (!after.contains(name)) changes.push_back("- " + name);
  }
  for (const auto& [name, bytes] : after) {
    const auto old = before.find(name);
    if (old == before.end() || old->second != bytes) {
      changes.push_back((old == before.end() ? "+ " : "* ") + name);
    }
  }
  return changes;
}

}  // namespace velra::test
