// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/TornFile.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

#include "platform/files/ContentPrint.h"
#include "platform/files/Files.h"
#include "platform/xml/XmlTexts.h"
#include "rescue/RescueTables.h"

namespace velra {

namespace {

// What disks write at once; the system's pages are multiples of it.
constexpr std::size_t kBlock = 512;

std::string printOf(std::string_view block) {
  const std::uint64_t print = contentPrint(block);
  std::string text(sizeof print, '\0');
  std::memcpy(text.data(), &print, sizeof print);
  return text;
}

bool hasPrint(std::string_view prints, std::size_t number, std::string_view block) {
  const std::string print = printOf(block);
  const std::size_t at = number * print.size();
  return at < prints.size() && prints.substr(at, print.size()) == print;
}

// Blocks that were reserved and not written.
bool isEmpty(std::string_view block) {
  return block.find_first_not_of('\0') == std::string_view::npos;
}

// True when every block is one of the old content, or of the new one, which is written over the old
// one with line ends behind it and cut off in the end.
bool isTorn(std::string_view bytes, const PlannedFile& file) {
  const std::size_t oldSize = file.stamp.exists ? static_cast<std::size_t>(file.stamp.size) : 0;
  std::string padded = file.bytes;
  padded.resize(std::max(padded.size(), oldSize), '\n');
  if (bytes.size() > padded.size()) return false;
  for (std::size_t at = 0; at < bytes.size();) {
    std::size_t end = (at / kBlock + 1) * kBlock;
    if (at < oldSize) end = std::min(end, oldSize);  // behind that the old content knows nothing
    const std::string_view block = bytes.substr(at, end - at);
    const bool cutOff = at + block.size() == file.bytes.size() && file.bytes.size() < oldSize;
    const bool old = at < oldSize && hasPrint(file.blocks, at / kBlock, block);
    const bool isNew = std::string_view(padded).substr(at, block.size()) == block;
    if (!old && !isNew && !cutOff && !isEmpty(block)) return false;
    at += block.size();
  }
  return true;
}

// A kill may come within a block, and then some bytes of it are neither; but nobody else leaves a
// file that cannot be parsed.
bool isWholeXml(const std::string& bytes, const std::string& path) {
  const auto same = [](std::string_view, const std::string& text) { return text; };
  return withTextsReplaced(bytes, path, same).reason.empty();
}

}  // namespace

std::string blocksOf(std::string_view bytes) {
  std::string blocks;
  for (; !bytes.empty(); bytes.remove_prefix(std::min(kBlock, bytes.size()))) {
    blocks += printOf(bytes.substr(0, kBlock));
  }
  return blocks;
}

std::string strStateOf(const PlannedFile& file, FileState& state, std::string& bytes) {
  const FileStamp present = keptStamp(file.path);
  bytes.clear();
  if (!present.exists) {
    state = file.stamp.exists ? FileState::Changed : FileState::Untouched;
    return {};
  }
  if (present.size == 0) {
    state = present == file.stamp ? FileState::Untouched : FileState::Torn;
    return {};
  }
  FileBytes read = readFile(file.path);
  if (!read.reason.empty()) return read.reason;
  bytes = std::move(read.bytes);
  if (bytes == file.bytes) {
    state = FileState::Written;
  } else if (present == file.stamp) {
    state = FileState::Untouched;
  } else {
    const bool torn = isTorn(bytes, file) || !isWholeXml(bytes, file.path);
    state = torn ? FileState::Torn : FileState::Changed;
  }
  return {};
}

}  // namespace velra
