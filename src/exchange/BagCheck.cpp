// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/BagCheck.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <utility>

#include "base/Text.h"
#include "platform/files/Digest.h"
#include "platform/files/Files.h"

namespace velra {

namespace {

namespace fs = std::filesystem;

std::string fromManifestPath(std::string path) {
  for (const auto& [coded, plain] :
       {std::pair{"%0A", "\n"}, std::pair{"%0a", "\n"}, std::pair{"%0D", "\r"},
        std::pair{"%0d", "\r"}, std::pair{"%25", "%"}}) {
    path = replaceAll(std::move(path), coded, plain);
  }
  return path;
}

bool staysInside(const std::string& path) {
  const auto parts = split(path, '/');
  return !path.starts_with('/') && !path.starts_with('~') &&
         std::find(parts.begin(), parts.end(), "..") == parts.end();
}

class BagReader {
 public:
  explicit BagReader(const std::string& folder) : folder_(folder) {}

  std::vector<std::string> faults() {
    checkDeclaration();
    bool listed = false;
    for (const char* algorithm : {"sha256", "sha512"}) {
      listed = checkManifest("manifest-" + std::string(algorithm) + ".txt", algorithm) || listed;
      checkManifest("tagmanifest-" + std::string(algorithm) + ".txt", algorithm);
    }
    if (!listed) tell("There is no manifest-sha256.txt and no manifest-sha512.txt.");
    return std::move(faults_);
  }

 private:
  void tell(const std::string& fault) { faults_.push_back(fault); }

  void checkDeclaration() {
    const std::string text = readFile(folder_ + "/bagit.txt").bytes;
    if (!text.starts_with("BagIt-Version: ")) tell("It is no bag: bagit.txt does not say so.");
    if (!bFolderExists(folder_ + "/data")) tell("The folder data is missing.");
  }

  // False when there is none of that name.
  bool checkManifest(const std::string& name, const std::string& algorithm) {
    const std::string path = folder_ + '/' + name;
    if (!bFileExists(path)) return false;
    std::set<std::string> listed;
    for (const std::string& line : split(readFile(path).bytes, '\n')) {
      if (trimmed(line).empty()) continue;
      const std::size_t blank = line.find_first_of(" \t");
      const std::size_t start = line.find_first_not_of(" \t*", blank);
      if (start == std::string::npos) {
        tell(name + " has a line without a path: " + line);
        continue;
      }
      std::string file = line.substr(start);
      if (file.ends_with('\r')) file.pop_back();
      file = fromManifestPath(file);
      listed.insert(file);
      checkFile(file, asciiLower(line.substr(0, blank)), algorithm);
    }
    if (!name.starts_with("tag")) tellOfOthers(name, listed);
    return true;
  }

  void checkFile(const std::string& file, const std::string& digest, const std::string& algorithm) {
    if (!staysInside(file)) return tell(file + " leads out of the bag.");
    if (!digests_.contains(file)) digests_[file] = digestsOf(folder_ + '/' + file);
    const FileDigests& digests = digests_[file];
    if (!digests.reason.empty()) return tell(file + ": " + digests.reason);
    const std::string& present = algorithm == "sha256" ? digests.sha256 : digests.sha512;
    if (present != digest) tell(file + " is not what it was (" + algorithm + ").");
  }

  void tellOfOthers(const std::string& name, const std::set<std::string>& listed) {
    std::error_code failed;
    for (fs::recursive_directory_iterator at(folder_ + "/data", failed), end; !failed && at != end;
         at.increment(failed)) {
      if (at->is_directory()) continue;
      const std::string file = "data/" + at->path().lexically_relative(folder_ + "/data").string();
      if (!listed.contains(file)) tell(file + " is not in " + name + ".");
    }
    if (failed) tell("data: " + systemReason(failed.value()));
  }

  std::string folder_;
  std::vector<std::string> faults_;
  std::map<std::string, FileDigests> digests_;
};

}  // namespace

std::string manifestPath(const std::string& path) {
  return replaceAll(replaceAll(replaceAll(path, "%", "%25"), "\n", "%0A"), "\r", "%0D");
}

std::vector<std::string> bagFaults(const std::string& folder) {
  return BagReader(folder).faults();
}

}  // namespace velra
