// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/Thumbnail.h"

#include "platform/files/Files.h"
#include "platform/movie/MovieLibrary.h"

namespace velra {

EmbeddedPicture embeddedPicture(const std::string& path, int mostWidth) {
  constexpr std::uint64_t kMostBytes = 400'000'000;
  const FileBytes file = readFile(path, kMostBytes);
  return file.reason.empty() ? movieLibrary().smallJpeg(file.bytes, mostWidth) : EmbeddedPicture();
}

}  // namespace velra
