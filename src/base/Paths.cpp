// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Paths.h"

#include <unistd.h>

#include <cstdlib>
#include <memory>

#include "base/RunTimeError.h"

namespace velra {

namespace {

struct CurrentFolder {
  std::string path;
  unsigned generation = 0;
};

std::string askCurrentFolder() {
  const std::unique_ptr<char, decltype(&std::free)> text(::getcwd(nullptr, 0), &std::free);
  // A folder that was deleted under the process has no path; "/" keeps relative names harmless.
  return text ? text.get() : "/";
}

// The process has one current folder, so there is one copy of its path.
CurrentFolder& current() {
  static CurrentFolder folder{askCurrentFolder(), 0};
  return folder;
}

void dropLastPart(std::string& path) {
  const std::size_t slash = path.rfind('/');
  path.resize(slash == std::string::npos ? 0 : slash);
}

void appendParts(std::string& result, std::string_view path) {
  while (!path.empty()) {
    const std::size_t end = path.find('/');
    const std::string_view part = path.substr(0, end);
    path.remove_prefix(end == std::string_view::npos ? path.size() : end + 1);
    if (part.empty() || part == ".") continue;
    if (part == "..") {
      dropLastPart(result);
    } else {
      result += '/';
      result += part;
    }
  }
}

std::string_view lastPart(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

bool isName(std::string_view part) {
  return !part.empty() && part != "." && part != "..";
}

}  // namespace

const std::string& currentFolder() {
  return current().path;
}

unsigned currentFolderGeneration() {
  return current().generation;
}

void changeCurrentFolder(const std::string& folder) {
  const std::string target = strAbsolutePath(folder);
  if (::chdir(target.c_str()) != 0) raise(kPathNotFound, folder);
  if (target == current().path) return;
  current().path = target;
  ++current().generation;
}

std::string strAbsolutePath(std::string_view path, const std::string& baseFolder) {
  std::string result;
  const bool relative = path.empty() || path.front() != '/';
  // An absolute one may be asked on a thread while another one changes the current folder.
  result.reserve((relative ? current().path.size() : 0) + path.size() + 1);
  if (relative) {
    if (!baseFolder.empty() && baseFolder.front() == '/') {
      appendParts(result, baseFolder);
    } else {
      appendParts(result, current().path);
      appendParts(result, baseFolder);
    }
  }
  appendParts(result, path);
  if (result.empty()) result = "/";
  return result;
}

bool bSamePath(std::string_view a, std::string_view b) {
  if (a == b) return true;
  const std::string_view nameA = lastPart(a);
  const std::string_view nameB = lastPart(b);
  // The last part of a path is that of its normal form, unless it is one that the form leaves out.
  if (nameA != nameB && isName(nameA) && isName(nameB)) return false;
  return strAbsolutePath(a) == strAbsolutePath(b);
}

std::string strSplitPath(std::string_view path, std::string& folder, std::string* extension) {
  folder.clear();
  if (extension) extension->clear();
  if (path.empty()) return {};
  const std::size_t slash = path.rfind('/');
  const std::string_view name = slash == std::string_view::npos ? path : path.substr(slash + 1);
  folder = slash == std::string_view::npos ? "./" : std::string(path.substr(0, slash + 1));
  const std::size_t point = name.rfind('.');
  if (point == std::string_view::npos) return std::string(name);
  if (extension) *extension = name.substr(point + 1);
  return std::string(name.substr(0, point));
}

std::string strFileName(std::string_view path) {
  std::string folder;
  std::string extension;
  const std::string base = strSplitPath(path, folder, &extension);
  return base + "." + extension;
}

std::string strExtension(std::string_view path) {
  std::string folder;
  std::string extension;
  strSplitPath(path, folder, &extension);
  return extension;
}

std::string folderOf(std::string_view path) {
  std::string folder;
  strSplitPath(path, folder);
  return folder;
}

std::string withSeparator(std::string folder) {
  if (folder.empty() || folder.back() != '/') folder += '/';
  return folder;
}

}  // namespace velra
