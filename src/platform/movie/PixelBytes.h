// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace velra {

/// Leaves what a vector is made longer by as the memory has it, unless a value is given.
template <class T>
struct UnsetMemory : std::allocator<T> {
  static void construct(T* place) { ::new (static_cast<void*>(place)) T; }
  template <class... Values>
  static void construct(T* place, Values&&... values) {
    ::new (static_cast<void*>(place)) T(std::forward<Values>(values)...);
  }
};

/// The bytes of a picture. `resize` does not clear them: whoever asks for some writes all, and to
/// write megabytes twice for each picture of a movie is a twentieth of what its play costs.
using PixelBytes = std::vector<std::uint8_t, UnsetMemory<std::uint8_t>>;

}  // namespace velra
