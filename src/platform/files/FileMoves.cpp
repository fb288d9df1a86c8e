// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files/FileMoves.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <memory>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "platform/files/FileHandle.h"
#include "platform/files/Files.h"
#include "platform/files/WriteInPlace.h"

namespace velra {
namespace {

constexpr off_t kMostCopied = 1'000'000'000;

ErrorNumber numberOf(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return kPathNotFound;
    case EEXIST:
      return kFileAlreadyExists;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return kDiskFull;
    default:
      return kPermissionDenied;
  }
}

[[noreturn]] void raiseFor(int error, const std::string& path) {
  raise(numberOf(error), path + " (" + systemReason(error) + ")");
}

/// A missing source has an error of its own: behind this only the destination's folder can be
/// missing.
void checkSource(const std::string& source) {
  if (!bFileExists(source)) raise(kFileNotFound, source);
}

bool isSameFile(const std::string& a, const std::string& b) {
  struct stat one {
  }, other{};
  return ::stat(a.c_str(), &one) == 0 && ::stat(b.c_str(), &other) == 0 &&
         one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

/// Renames without ever replacing; 0 or the system's error.
int renameToFree(const std::string& source, const std::string& destination) {
  const char* const from = source.c_str();
  const char* const to = destination.c_str();
  if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS) return errno;
  // The file system does not know the wish: the question and the renaming are two steps then.
  if (::access(to, F_OK) == 0) return EEXIST;
  return ::rename(from, to) == 0 ? 0 : errno;
}

/// The file itself where the path is a link, so that the link stays one.
std::string linkTarget(const std::string& path) {
  const std::unique_ptr<char, decltype(&::free)> real(::realpath(path.c_str(), nullptr), &::free);
  return real ? real.get() : path;
}

/// Writes a new file and brings it to the disk; 0 or the system's error.
int writeSynced(const std::string& path, std::string_view bytes, const std::string& modeOf) {
  int error = writeInPlace(path, bytes);
  if (error) return error;
  struct stat status {};
  if (::stat(modeOf.c_str(), &status) == 0) ::chmod(path.c_str(), status.st_mode & 0777);
  FileHandle file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  return file && ::fsync(file.number()) == 0 ? 0 : errno;
}

std::string bytesToCopy(const std::string& source) {
  const FileHandle file(::open(source.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (!file || ::fstat(file.number(), &status) != 0) raiseFor(errno, source);
  // A file with holes may be longer than the memory, or than the disk.
  if (status.st_size > kMostCopied) raiseFor(EFBIG, source);
  std::string bytes;
  const int error = readAll(file, static_cast<std::size_t>(status.st_size), bytes);
  if (error) raiseFor(error, source);
  return bytes;
}

}  // namespace

std::string replaceFile(const std::string& path, std::string_view bytes) {
  const std::string target = linkTarget(path);
  const std::string beside = target + ".new";
  ::unlink(beside.c_str());  // what a crash may have left
  int error = writeSynced(beside, bytes, target);
  if (!error && std::rename(beside.c_str(), target.c_str()) != 0) error = errno;
  if (error) ::unlink(beside.c_str());
  return error ? systemReason(error) : std::string();
}

void MoveFileTo(const std::string& source, const std::string& destination) {
  checkSource(source);
  const int error = renameToFree(source, destination);
  if (error == 0) return;
  if (error != EXDEV) raiseFor(error, destination);
  if (bFileExists(destination)) raiseFor(EEXIST, destination);
  CopyFileTo(source, destination);
  if (::unlink(source.c_str()) != 0) raiseFor(errno, source);
}

void CopyFileTo(const std::string& source, const std::string& destination) {
  checkSource(source);
  if (isSameFile(source, destination)) raiseFor(EACCES, destination);
  const int error = writeInPlace(destination, bytesToCopy(source));
  if (error) raiseFor(error, destination);
}

void CopyToNewFile(const std::string& source, const std::string& destination, NewFileIs seen) {
  checkSource(source);
  const int error = writeNew(destination, bytesToCopy(source), seen);
  if (error) raiseFor(error, destination);
}

}  // namespace velra
