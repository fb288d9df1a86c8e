// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/Digests.h"

extern "C" {
#include <libavutil/mem.h>
#include <libavutil/sha.h>
#include <libavutil/sha512.h>
}

#include <memory>
#include <vector>

namespace velra {

namespace {

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

FileDigests digestsOfPieces(const std::function<std::string_view()>& nextPiece) {
  FileDigests digests;
  const std::unique_ptr<AVSHA, FreeMemory> sha256(av_sha_alloc());
  const std::unique_ptr<AVSHA512, FreeMemory> sha512(av_sha512_alloc());
  av_sha_init(sha256.get(), 256);
  av_sha512_init(sha512.get(), 512);
  for (std::string_view piece = nextPiece(); !piece.empty(); piece = nextPiece()) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(piece.data());
    av_sha_update(sha256.get(), bytes, piece.size());
    av_sha512_update(sha512.get(), bytes, piece.size());
    digests.bytes += piece.size();
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
