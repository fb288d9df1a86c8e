// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace velra {

/// The digests of a file, in small hexadecimal digits.
struct FileDigests {
  std::string sha256;
  std::string sha512;
  std::uint64_t bytes = 0;
  std::string reason;  // why there are none; else empty
};

/// Reads a file of any size once, a piece at a time.
FileDigests digestsOf(const std::string& path);

}  // namespace velra
