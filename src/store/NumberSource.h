// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <tsl/robin_map.h>

#include <memory>
#include <set>
#include <string>
#include <unordered_set>
#include <vector>

#include "platform/files/FolderWatch.h"
#include "store/PathKey.h"

namespace velra {

class ObjectRegistry;

/// Finds the lowest free number for a new file of a class. A number is taken when an object of the
/// registry has the path as its identifier or a file of the path exists. Each call
/// counts from 1; what is kept here only saves asking again what is known to be taken by an object,
/// or by a file in a folder that is watched.
class NumberSource {
 public:
  explicit NumberSource(ObjectRegistry& objects) : objects_(objects) {}
  ~NumberSource() = default;
  NumberSource(const NumberSource&) = delete;
  NumberSource& operator=(const NumberSource&) = delete;

  /// The first free path of the form prefix, number, suffix. kOverflow beyond 32767.
  std::string take(const std::string& prefix, const std::string& suffix);

  /// The registry tells of every identifier that went out of use.
  void freed(PathKey key);

  /// The watch of a folder, for who ends it later: the system throws away all that it has to tell.
  std::unique_ptr<FolderWatch> takeWatch();

  /// True when nothing is taken for used that is free; for tests.
  bool checkConsistency() const;

  /// While an object of this kind lives, one listing of a folder answers whether a file exists
  /// there.
  class Listing {
   public:
    Listing(NumberSource& numbers, const std::string& folder);
    ~Listing();
    Listing(const Listing&) = delete;
    Listing& operator=(const Listing&) = delete;

    /// To be told of each file that comes or goes meanwhile, by its absolute path.
    void fileCame(const std::string& path);
    void fileWent(const std::string& path);

   private:
    NumberSource& numbers_;
  };

 private:
  struct Family {
    std::string prefix;
    std::string suffix;
    std::string key;       // the normal form of the prefix
    int frontier = 1;      // every number below is taken by an object, but for the gaps
    std::set<int> gaps;    // numbers to be asked for again
    std::set<int> filled;  // by files, as far as the watch has told
    tsl::robin_map<PathKey, int, PathKeyHash> passed;  // the numbers below, by their paths
  };

  Family& familyOf(const std::string& prefix, const std::string& suffix);
  bool fileTaken(const std::string& path) const;
  void takeNews(const Family& family);
  static PathKey keyOf(const Family& family, int number);
  static std::string pathOf(const Family& family, int number);
  std::string takeFromGaps(Family& family);

  ObjectRegistry& objects_;
  std::vector<Family> families_;  // some for each kind of file
  std::string watchedFolder_;     // of the watch
  std::unique_ptr<FolderWatch> watch_;
  std::string listedFolder_;
  std::unordered_set<std::string> listedNames_;
};

}  // namespace velra
