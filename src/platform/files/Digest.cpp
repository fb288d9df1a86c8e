// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files/Digest.h"

extern "C" {
#include <libavutil/mem.h>
#include <libavutil/sha.h>
#include <libavutil/sha512.h>
}

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <vector>

#include "platform/files/FileHandle.h"
#include "platform/files/Files.h"

namespace velra {

namespace {

constexpr std::size_t kPiece = 1 << 20;

struct FreeMemory {
  void operator()(void* memory) const { av_free(memory); }
};

std::string hexDigits(const std::vector<std::uint8_t>& bytes) {
  static constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  for (const std::uint8_t byte : bytes) {
    text += kDigits[byte >> 4U];
    text += kDigits[byte & 15U];
  }
  return text;
}

}  // namespace

FileDigests digestsOf(const std::string& path) {
  FileDigests digests;
  const FileHandle file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file) {
    digests.reason = systemReason(errno);
    return digests;
  }
  const std::unique_ptr<AVSHA, FreeMemory> sha256(av_sha_alloc());
  const std::unique_ptr<AVSHA512, FreeMemory> sha512(av_sha512_alloc());
  av_sha_init(sha256.get(), 256);
  av_sha512_init(sha512.get(), 512);
  std::vector<std::uint8_t> piece(kPiece);
  ssize_t count = 0;
  while ((count = ::read(file.number(), piece.data(), piece.size())) != 0) {
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) {
      digests.reason = systemReason(errno);
      return digests;
    }
    const auto size = static_cast<std::size_t>(count);
    av_sha_update(sha256.get(), piece.data(), size);
    av_sha512_update(sha512.get(), piece.data(), size);
    digests.bytes += size;
  }
  std::vector<std::uint8_t> digest(32);
  av_sha_final(sha256.get(), digest.data());
  digests.sha256 = hexDigits(digest);
  digest.resize(64);
  av_sha512_final(sha512.get(), digest.data());
  digests.sha512 = hexDigits(digest);
  return digests;
}

}  // namespace velra
