// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <unordered_set>

namespace velra {

class ObjectRegistry;

/// Finds the lowest free number for a new file of a class. A number is taken when an object has the
/// path as its identifier or a file of the path exists. The rule counts from 1 each time; what is
/// kept here only saves asking again what is known to be taken by an object.
class NumberSource {
 public:
  /// The first free path of the form prefix, number, suffix. kOverflow beyond 32767.
  std::string take(ObjectRegistry& objects, const std::string& prefix, const std::string& suffix);

  /// To be told of every identifier (in its normal form) that went out of use.
  void freed(const std::string& key);

  /// To be told of a file that came or went while a listing stands for the folder.
  void fileCame(const std::string& path);
  void fileWent(const std::string& path);

  /// True when nothing is taken for used that is free; for tests.
  bool checkConsistency(ObjectRegistry& objects) const;

  /// While an object of this kind lives, one listing of a folder answers whether a file exists
  /// there.
  class Listing {
   public:
    Listing(NumberSource& numbers, const std::string& folder);
    ~Listing();
    Listing(const Listing&) = delete;
    Listing& operator=(const Listing&) = delete;

   private:
    NumberSource& numbers_;
  };

 private:
  struct Family {
    std::string key;   // the normal form of the prefix
    int frontier = 1;  // every number below is taken by an object, but for the gaps
    std::set<int> gaps;
  };

  bool fileTaken(const std::string& path) const;
  std::string takeFromGaps(ObjectRegistry& objects, Family& family, const std::string& prefix,
                           const std::string& suffix);

  std::map<std::pair<std::string, std::string>, Family> families_;
  std::string listedFolder_;
  std::unordered_set<std::string> listedNames_;
};

}  // namespace velra
