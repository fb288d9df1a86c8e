// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <utility>

namespace velra {

/// Sets a variable for as long as it lives, and puts the old value back, after an error too. The
/// variable outlives it.
template <class T>
class ScopedValue {
 public:
  ScopedValue(T& place, T value) : place_(place), before_(std::exchange(place, std::move(value))) {}
  ~ScopedValue() { place_ = std::move(before_); }
  ScopedValue(const ScopedValue&) = delete;
  ScopedValue& operator=(const ScopedValue&) = delete;

 private:
  T& place_;
  T before_;
};

}  // namespace velra
