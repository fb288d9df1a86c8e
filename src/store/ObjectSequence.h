// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>

#include "protocol/RegisteredObject.h"

namespace velra {

/// Objects in the order in which they came, each with a number that grows along it and is given
/// once. What comes does not disturb a walk; what goes does.
class ObjectSequence {
 public:
  struct Entry {
    std::uint64_t number;
    RegisteredRef object;  // null when it has gone: the others stay where they are
  };

  class Iterator {
   public:
    Iterator(const std::deque<Entry>& entries, std::size_t offset)
        : entries_(entries), offset_(offset) {
      skipGone();
    }
    const Entry& operator*() const { return entries_[offset_]; }
    Iterator& operator++() {
      ++offset_;
      skipGone();
      return *this;
    }
    bool operator==(const Iterator& other) const { return offset_ == other.offset_; }

   private:
    void skipGone() {
      while (offset_ < entries_.size() && !entries_[offset_].object) ++offset_;
    }

    const std::deque<Entry>& entries_;
    std::size_t offset_;
  };

  Iterator begin() const { return {entries_, 0}; }
  Iterator end() const { return {entries_, entries_.size()}; }
  std::size_t size() const { return entries_.size() - gone_; }

  /// The number of the object.
  std::uint64_t add(const RegisteredRef& object);
  /// Null when there is none of the number.
  RegisteredRef find(std::uint64_t number) const;
  /// The same without a look at the object, which may be in no cache.
  bool contains(std::uint64_t number) const;
  void remove(std::uint64_t number);

 private:
  std::size_t offsetOf(std::uint64_t number) const;

  std::deque<Entry> entries_;
  std::size_t gone_ = 0;
  std::uint64_t next_ = 1;
};

}  // namespace velra
