// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files/Files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <limits>
#include <memory>
#include <system_error>

#include "base/Paths.h"
#include "base/Text.h"
#include "platform/files/FileHandle.h"
#include "platform/files/WriteInPlace.h"

namespace velra {
namespace {

std::string outcome(bool success) {
  return success ? std::string() : systemReason(errno);
}

bool sameLetter(char a, char b) {
  return a == b || equalIgnoringAsciiCase({&a, 1}, {&b, 1});
}

/// True when a name fits a pattern of bytes, "*" for any run and "?" for any one.
bool fits(std::string_view name, std::string_view pattern) {
  std::size_t at = 0, in = 0, star = std::string_view::npos, from = 0;
  while (at < name.size()) {
    if (in < pattern.size() && pattern[in] == '*') {
      star = in++;
      from = at;
    } else if (in < pattern.size() && (pattern[in] == '?' || sameLetter(pattern[in], name[at]))) {
      ++in;
      ++at;
    } else if (star != std::string_view::npos) {
      in = star + 1;
      at = ++from;
    } else {
      return false;
    }
  }
  while (in < pattern.size() && pattern[in] == '*') ++in;
  return in == pattern.size();
}

/// The listing mostly tells the kind; links and some file systems need a question.
bool mayBeLink(const dirent& entry) {
  return entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN;
}

bool isPlainFile(const dirent& entry, const std::string& folder) {
  return mayBeLink(entry) ? bPlainFileExists(folder + entry.d_name) : entry.d_type == DT_REG;
}

FolderListing entriesOf(const std::string& folder,
                        const std::function<bool(const dirent&)>& wanted) {
  FolderListing found;
  const auto close = [](DIR* listing) { ::closedir(listing); };
  const std::unique_ptr<DIR, decltype(close)> listing(::opendir(folder.c_str()), close);
  if (!listing) return {{}, errno == ENOENT ? std::string() : systemReason(errno)};
  const auto next = [&] {
    errno = 0;  // the end of the folder sets none
    return ::readdir(listing.get());
  };
  while (const dirent* entry = next()) {
    if (wanted(*entry)) found.names.emplace_back(entry->d_name);
  }
  if (errno != 0) found.reason = systemReason(errno);
  return found;
}

std::string refusal(const struct stat& status, std::uint64_t limit) {
  if (S_ISDIR(status.st_mode)) return systemReason(EISDIR);
  if (!S_ISREG(status.st_mode)) return "Not a regular file";
  if (status.st_size == 0) return "The file is empty";
  if (static_cast<std::uint64_t>(status.st_size) > limit) return "The file is too large";
  return {};
}

FileBytes readUpTo(const std::string& path, std::uint64_t limit, std::uint64_t most) {
  const FileHandle file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
  struct stat status {};
  if (!file || ::fstat(file.number(), &status) != 0) return {{}, systemReason(errno)};
  FileBytes read{{}, refusal(status, limit), stampOf(status), status.st_nlink > 1};
  if (!read.reason.empty()) return read;
  const auto size = std::min(static_cast<std::uint64_t>(status.st_size), most);
  const int error = readAll(file, static_cast<std::size_t>(size), read.bytes);
  if (error) read = {{}, systemReason(error), read.stamp, read.otherNames};
  return read;
}

}  // namespace

bool bFileExists(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

bool bFolderExists(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool bPlainFileExists(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

bool bLinkExists(const std::string& path) {
  struct stat status {};
  return ::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

bool bSomethingAt(const std::string& path) {
  struct stat status {};
  return ::lstat(path.c_str(), &status) == 0;
}

std::vector<std::string> colListFiles(const std::string& pattern) {
  return listFiles(pattern).names;
}

FolderListing listFiles(const std::string& pattern) {
  const std::string folder = folderOf(pattern);
  const std::string_view namePattern = std::string_view(pattern).substr(pattern.rfind('/') + 1);
  bool links = false;
  FolderListing found = entriesOf(folder, [&](const dirent& entry) {
    const bool wanted = fits(entry.d_name, namePattern) && isPlainFile(entry, folder);
    links = links || (wanted && mayBeLink(entry));
    return wanted;
  });
  found.links = links;
  std::sort(found.names.begin(), found.names.end());
  return found;
}

std::vector<std::string> namesIn(const std::string& folder) {
  return entriesOf(folder, [](const dirent&) { return true; }).names;
}

FileBytes readFile(const std::string& path, std::uint64_t limit) {
  return readUpTo(path, limit, limit);
}

FileBytes readStart(const std::string& path, std::uint64_t most) {
  return readUpTo(path, std::numeric_limits<std::uint64_t>::max(), most);
}

std::string writeFileInPlace(const std::string& path, std::string_view bytes) {
  const int error = writeInPlace(path, bytes);
  return error ? systemReason(error) : std::string();
}

std::string writeNewFile(const std::string& path, std::string_view bytes, NewFileIs seen) {
  const int error = writeNew(path, bytes, seen);
  return error ? systemReason(error) : std::string();
}

std::string syncFile(const std::string& path) {
  const FileHandle file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  return outcome(file && ::fsync(file.number()) == 0);
}

std::string syncFolder(const std::string& folder) {
  const FileHandle file(::open(folder.c_str(), O_RDONLY | O_CLOEXEC | O_DIRECTORY));
  return outcome(file && ::syncfs(file.number()) == 0);
}

std::string makeFolder(const std::string& path) {
  return outcome(::mkdir(path.c_str(), 0777) == 0);
}

void makeFolders(const std::string& path) {
  if (bFolderExists(path)) return;
  const std::string above = strAbsolutePath(path + "/..");
  if (above != path) makeFolders(above);
  makeFolder(path);
}

void removeFolderIfEmpty(const std::string& path) {
  ::rmdir(path.c_str());
}

std::string deleteFile(const std::string& path) {
  return outcome(::unlink(path.c_str()) == 0);
}

std::string strTempPath() {
  std::error_code failed;
  const std::string folder = std::filesystem::temp_directory_path(failed);
  return withSeparator(failed ? "/tmp" : folder);
}

std::string systemReason(int error) {
  return std::generic_category().message(error);
}

}  // namespace velra
