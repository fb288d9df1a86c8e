// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

/// The folder of a bag while it is made, beside its place; gone again when it is not finished. All
/// members raise ExchangeFailure or a run-time error.
class UnfinishedBag {
 public:
  /// Neither the place nor "PLACE.unfinished" is there yet.
  explicit UnfinishedBag(const std::string& place);
  ~UnfinishedBag();
  UnfinishedBag(const UnfinishedBag&) = delete;
  UnfinishedBag& operator=(const UnfinishedBag&) = delete;

  /// Where a path of the bag lies until then.
  std::string operator/(const std::string& path) const { return folder_ + '/' + path; }

  void write(const std::string& path, const std::string& bytes) const;
  void copy(const std::string& source, const std::string& path) const;
  /// Brings it to its place.
  void finish();

 private:
  std::string place_;
  std::string folder_;
  bool finished_ = false;
};

}  // namespace velra
