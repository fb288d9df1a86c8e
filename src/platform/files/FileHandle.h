// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

#include <string>
#include <utility>

namespace velra {

/// An open file of the system, closed at the end.
class FileHandle {
 public:
  FileHandle() = default;
  explicit FileHandle(int number) : number_(number) {}
  FileHandle(FileHandle&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  FileHandle& operator=(FileHandle&&) = delete;
  ~FileHandle() { close(); }
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;

  explicit operator bool() const { return number_ >= 0; }
  int number() const { return number_; }

  /// 0 or the system's error: some file systems report a failed write only here.
  int close();

 private:
  int number_ = -1;
};

/// Everything in an open file from its start, up to `size` bytes. 0 or the system's error.
int readAll(const FileHandle& file, std::size_t size, std::string& bytes);

}  // namespace velra
