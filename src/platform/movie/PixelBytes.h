// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace velra {

/// Leaves bytes as the memory has them when a vector is made longer without a value for them.
struct UnsetBytes : std::allocator<std::uint8_t> {
  template <class Other>
  struct rebind {
    using other = UnsetBytes;
  };

  static void construct(std::uint8_t* byte) { ::new (static_cast<void*>(byte)) std::uint8_t; }
  template <class... Values>
  static void construct(std::uint8_t* byte, Values&&... values) {
    ::new (static_cast<void*>(byte)) std::uint8_t(std::forward<Values>(values)...);
  }
};

/// The bytes of a picture. `resize` does not clear them: whoever asks for some writes all, and to
/// write megabytes twice for each picture of a movie is a twentieth of what its play costs.
using PixelBytes = std::vector<std::uint8_t, UnsetBytes>;

}  // namespace velra
