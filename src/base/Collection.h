// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "base/RunTimeError.h"

namespace velra {

/// An ordered list whose positions count from 1 and whose members may have a text key.
/// A bad position raises kSubscriptOutOfRange, an unknown key kInvalidArgument, a key given twice
/// kDuplicateKey.
template <class T>
class Collection {
 public:
  using const_iterator = typename std::vector<T>::const_iterator;

  /// Appends; an empty key means no key.
  void Add(T member, const std::string& key = {}) {
    if (!key.empty()) {
      if (hasKey(key)) raise(kDuplicateKey);
      keys_.resize(members_.size());
    }
    members_.push_back(std::move(member));
    if (!keys_.empty() || !key.empty()) keys_.push_back(key);
  }

  const T& Item(std::size_t position) const { return members_[checked(position)]; }
  T& Item(std::size_t position) { return members_[checked(position)]; }
  const T& Item(const std::string& key) const { return members_[positionOf(key) - 1]; }

  std::size_t Count() const { return members_.size(); }
  bool empty() const { return members_.empty(); }

  void Remove(std::size_t position) {
    const auto offset = static_cast<std::ptrdiff_t>(checked(position));
    members_.erase(members_.begin() + offset);
    if (!keys_.empty()) keys_.erase(keys_.begin() + offset);
  }
  void Remove(const std::string& key) { Remove(positionOf(key)); }

  /// Position of the first equal member; 0 when there is none.
  std::size_t find(const T& member) const {
    const auto at = std::find(members_.begin(), members_.end(), member);
    return at == members_.end() ? 0 : static_cast<std::size_t>(at - members_.begin()) + 1;
  }

  bool hasKey(const std::string& key) const {
    return std::find(keys_.begin(), keys_.end(), key) != keys_.end();
  }

  /// Makes room for a known number of members at once.
  void reserve(std::size_t count) { members_.reserve(count); }

  void clear() {
    members_.clear();
    keys_.clear();
  }

  const_iterator begin() const { return members_.begin(); }
  const_iterator end() const { return members_.end(); }

 private:
  std::size_t checked(std::size_t position) const {
    if (position < 1 || position > members_.size()) raise(kSubscriptOutOfRange);
    return position - 1;
  }

  std::size_t positionOf(const std::string& key) const {
    const auto at = std::find(keys_.begin(), keys_.end(), key);
    if (key.empty() || at == keys_.end()) raise(kInvalidArgument);
    return static_cast<std::size_t>(at - keys_.begin()) + 1;
  }

  std::vector<T> members_;
  std::vector<std::string> keys_;  // empty while no member has a key
};

}  // namespace velra
