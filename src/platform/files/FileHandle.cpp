// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files/FileHandle.h"

#include <unistd.h>

#include <cerrno>

namespace velra {

int FileHandle::close() {
  const int number = std::exchange(number_, -1);
  return number >= 0 && ::close(number) != 0 ? errno : 0;
}

int readAll(const FileHandle& file, std::size_t size, std::string& bytes) {
  bytes.resize(size);
  std::size_t done = 0;
  while (done < size) {
    const ssize_t count =
        ::pread(file.number(), bytes.data() + done, size - done, static_cast<off_t>(done));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    if (count == 0) break;
    done += static_cast<std::size_t>(count);
  }
  bytes.resize(done);
  return 0;
}

}  // namespace velra
