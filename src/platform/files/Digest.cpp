// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files/Digest.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>

#include "platform/files/FileHandle.h"
#include "platform/files/Files.h"
#include "platform/movie/MovieLibrary.h"

namespace velra {

namespace {

constexpr std::size_t kPiece = 1 << 20;

}  // namespace

FileDigests digestsOf(const std::string& path) {
  FileDigests digests;
  const FileHandle file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file) {
    digests.reason = systemReason(errno);
    return digests;
  }
  std::string piece(kPiece, '\0');
  int error = 0;
  digests = movieLibrary().digests([&]() -> std::string_view {
    ssize_t count = 0;
    do {
      count = ::read(file.number(), piece.data(), piece.size());
    } while (count < 0 && errno == EINTR);
    if (count < 0) error = errno;
    return {piece.data(), count < 0 ? 0 : static_cast<std::size_t>(count)};
  });
  if (error != 0) digests = {{}, {}, digests.bytes, systemReason(error)};
  return digests;
}

}  // namespace velra
