// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files/Bitmap.h"

#include <cstddef>
#include <cstdint>

#include "platform/files/Files.h"
#include "platform/movie/MediaGraph.h"

namespace velra {

namespace {

constexpr std::uint32_t kFileHead = 14;
constexpr std::uint32_t kInfoHead = 40;

void put(std::string& bytes, std::uint32_t number, int size) {
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFFU);
}

std::string head(std::uint32_t width, std::uint32_t height, std::uint32_t pixelBytes) {
  std::string bytes = "BM";
  put(bytes, kFileHead + kInfoHead + pixelBytes, 4);
  put(bytes, 0, 4);
  put(bytes, kFileHead + kInfoHead, 4);
  put(bytes, kInfoHead, 4);
  put(bytes, width, 4);
  put(bytes, height, 4);
  put(bytes, 1, 2);   // planes
  put(bytes, 24, 2);  // bits a pixel
  put(bytes, 0, 4);   // not compressed
  put(bytes, pixelBytes, 4);
  put(bytes, 2835, 4);  // 72 to the inch
  put(bytes, 2835, 4);
  put(bytes, 0, 4);  // no palette
  put(bytes, 0, 4);
  return bytes;
}

std::string bitmapBytes(const PictureFrame& picture) {
  const auto width = static_cast<std::size_t>(picture.width);
  const auto height = static_cast<std::size_t>(picture.height);
  const std::size_t stride = (width * 3 + 3) / 4 * 4;
  std::string bytes = head(static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height),
                           static_cast<std::uint32_t>(stride * height));
  bytes.reserve(bytes.size() + stride * height);
  for (std::size_t row = height; row-- > 0;) {
    const std::uint8_t* pixel = picture.pixels.data() + row * width * 4;
    for (std::size_t x = 0; x < width; ++x, pixel += 4) {
      for (int channel = 0; channel < 3; ++channel) bytes += static_cast<char>(pixel[channel]);
    }
    bytes.append(stride - width * 3, '\0');
  }
  return bytes;
}

}  // namespace

std::string writeBitmap(const PictureFrame& picture, const std::string& path) {
  return writeFileInPlace(path, bitmapBytes(picture));
}

}  // namespace velra
