// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files/BitmapCheck.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "base/RunTimeError.h"

namespace velra {

namespace {

constexpr std::size_t kSmallestHead = 26;  // file head and the oldest information head
constexpr std::size_t kHead = 54;

using Head = std::array<unsigned char, kHead>;

std::uint32_t number(const Head& head, std::size_t at, std::size_t size) {
  std::uint32_t value = 0;
  for (std::size_t i = size; i-- > 0;) value = value << 8 | head[at + i];
  return value;
}

bool goodBits(std::uint32_t bits) {
  constexpr std::array<std::uint32_t, 6> kKnown{1, 4, 8, 16, 24, 32};
  return std::find(kKnown.begin(), kKnown.end(), bits) != kKnown.end();
}

struct Shape {
  std::int64_t width;
  std::int64_t height;  // positive
  std::uint32_t bits;
  bool compressed;
};

Shape shapeOf(const Head& head) {
  if (number(head, 14, 4) == 12) {
    return {number(head, 18, 2), number(head, 20, 2), number(head, 24, 2), false};
  }
  const auto width = static_cast<std::int32_t>(number(head, 18, 4));
  const std::int64_t height = static_cast<std::int32_t>(number(head, 22, 4));
  const std::uint32_t kind = number(head, 30, 4);
  return {width, height < 0 ? -height : height, number(head, 28, 2), kind == 1 || kind == 2};
}

bool goodHead(const Head& head, std::size_t read, std::int64_t fileSize) {
  if (read < kSmallestHead || head[0] != 'B' || head[1] != 'M') return false;
  const std::uint32_t infoHead = number(head, 14, 4);
  if (infoHead != 12 && (infoHead < 40 || read < kHead)) return false;
  const Shape shape = shapeOf(head);
  constexpr std::int64_t kLargest = 1 << 16;
  if (shape.width <= 0 || shape.height <= 0 || shape.width > kLargest || shape.height > kLargest ||
      !goodBits(shape.bits)) {
    return false;
  }
  const std::int64_t pixels = number(head, 10, 4);
  const std::int64_t stride = (shape.width * shape.bits + 31) / 32 * 4;
  const std::int64_t needed = shape.compressed ? 1 : stride * shape.height;
  return pixels >= static_cast<std::int64_t>(kSmallestHead) && pixels + needed <= fileSize;
}

}  // namespace

FileStamp checkBitmap(const std::string& path) {
  const FileBytes file = readStart(path, kHead);
  if (!file.reason.empty()) raise(bFileExists(path) ? kInvalidPicture : kFileNotFound, path);
  Head head{};
  std::copy(file.bytes.begin(), file.bytes.end(), head.begin());
  if (!goodHead(head, file.bytes.size(), static_cast<std::int64_t>(file.stamp.size))) {
    raise(kInvalidPicture, path);
  }
  return file.stamp;
}

}  // namespace velra
