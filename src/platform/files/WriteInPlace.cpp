// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files/WriteInPlace.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <string>
#include <string_view>

#include "base/Paths.h"
#include "platform/files/FileHandle.h"

namespace velra {
namespace {

/// A limit on the size of files must come back as an error, not as the end of the program.
void ignoreSizeSignal() {
  static const bool ignored = std::signal(SIGXFSZ, SIG_IGN) != SIG_ERR;
  static_cast<void>(ignored);
}

/// Writes all bytes at a place; 0 or the system's error.
int writeAt(const FileHandle& file, std::string_view bytes, std::size_t place) {
  while (!bytes.empty()) {
    const ssize_t count =
        ::pwrite(file.number(), bytes.data(), bytes.size(), static_cast<off_t>(place));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    if (count == 0) return EIO;
    bytes.remove_prefix(static_cast<std::size_t>(count));
    place += static_cast<std::size_t>(count);
  }
  return 0;
}

int setLength(const FileHandle& file, std::size_t size) {
  return ::ftruncate(file.number(), static_cast<off_t>(size)) == 0 ? 0 : errno;
}

/// Takes room on the disk before anything is changed. Where the file system cannot do that, the new
/// end is written first, behind all that the old file holds.
int reserve(const FileHandle& file, std::string_view bytes, std::size_t oldSize) {
  if (bytes.size() <= oldSize) return 0;
  if (::fallocate(file.number(), FALLOC_FL_KEEP_SIZE, 0, static_cast<off_t>(bytes.size())) == 0) {
    return 0;
  }
  if (errno != EOPNOTSUPP && errno != ENOSYS) return errno;
  const int error = writeAt(file, bytes.substr(oldSize), oldSize);
  if (error) setLength(file, oldSize);
  return error;
}

/// One write over the old bytes, so that the file is whole at nearly every moment: a shorter
/// content is filled up with line ends, which are legal behind the root, and cut afterwards.
int overwrite(const FileHandle& file, std::string_view bytes, std::size_t oldSize) {
  if (bytes.size() >= oldSize) return writeAt(file, bytes, 0);
  std::string padded(bytes);
  padded.resize(oldSize, '\n');
  const int error = writeAt(file, padded, 0);
  return error ? error : setLength(file, bytes.size());
}

int replaceContent(const FileHandle& file, std::string_view bytes) {
  struct stat status {};
  if (::fstat(file.number(), &status) != 0) return errno;
  if (!S_ISREG(status.st_mode)) return EINVAL;
  std::string old;
  int error = readAll(file, static_cast<std::size_t>(status.st_size), old);
  if (error) return error;
  error = reserve(file, bytes, old.size());
  if (error) return error;
  error = overwrite(file, bytes, old.size());
  if (error) {
    // Putting back can fail like the write itself; there is nothing left to do then.
    writeAt(file, old, 0);
    setLength(file, old.size());
  }
  return error;
}

constexpr int kOpening = O_RDWR | O_CLOEXEC | O_NOCTTY | O_NONBLOCK;

int createAndWrite(const std::string& path, std::string_view bytes) {
  FileHandle file(::open(path.c_str(), kOpening | O_CREAT | O_EXCL, 0666));
  if (!file) return errno;
  // A new file holds nothing to protect: what goes wrong removes it again.
  int error = writeAt(file, bytes, 0);
  const int closeError = file.close();
  if (!error) error = closeError;
  if (error) ::unlink(path.c_str());
  return error;
}

}  // namespace

int writeInPlace(const std::string& path, std::string_view bytes) {
  ignoreSizeSignal();
  FileHandle file(::open(path.c_str(), kOpening));
  if (!file) return errno == ENOENT ? writeNew(path, bytes, NewFileIs::SeenWhole) : errno;
  const int error = replaceContent(file, bytes);
  const int closeError = file.close();
  return error ? error : closeError;
}

// A file that appears when it is whole is one without a name at first, so that neither a program
// that dies nor a disk that fails leaves a part of it. Not every file system can make one.
int writeNew(const std::string& path, std::string_view bytes, NewFileIs seen) {
  ignoreSizeSignal();
  if (seen == NewFileIs::SeenAtOnce) return createAndWrite(path, bytes);
  FileHandle file(::open(folderOf(path).c_str(), O_RDWR | O_CLOEXEC | O_TMPFILE, 0666));
  const bool unknown = errno == EOPNOTSUPP || errno == EISDIR || errno == EINVAL;
  if (!file) return unknown ? createAndWrite(path, bytes) : errno;
  int error = writeAt(file, bytes, 0);
  if (error) return error;
  const std::string unnamed = "/proc/self/fd/" + std::to_string(file.number());
  if (::linkat(AT_FDCWD, unnamed.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) != 0) {
    return errno == ENOENT ? createAndWrite(path, bytes) : errno;  // a machine without /proc
  }
  error = file.close();
  if (error) ::unlink(path.c_str());
  return error;
}

}  // namespace velra
