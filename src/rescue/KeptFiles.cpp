// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/KeptFiles.h"

#include "base/Paths.h"
#include "platform/files/Files.h"

namespace velra {

namespace {

// Files of several folders may have one name, and the folder may hold anything.
std::string freePlace(const std::string& folder, const std::string& path) {
  std::string above;
  std::string extension;
  const std::string base = strSplitPath(path, above, &extension);
  const std::string ending = extension.empty() ? "" : "." + extension;
  std::string place = folder + base + ending;
  for (int i = 2; fileStamp(place).exists; ++i) {
    place = folder + base + "-" + std::to_string(i) + ending;
  }
  return place;
}

}  // namespace

KeptFiles writeKeptFiles(const std::vector<KeptObject>& kept, const std::string& folder) {
  KeptFiles result;
  const std::string target = withSeparator(strAbsolutePath(folder));
  makeFolders(strAbsolutePath(folder));
  std::vector<std::string> made;
  for (const KeptObject& object : kept) {
    if (object.removed) continue;
    const std::string place = freePlace(target, object.path);
    const std::string reason = writeNewFile(place, object.bytes);
    if (!reason.empty()) {
      result.failure = reason + " (" + place + ")";
      break;
    }
    made.push_back(place);
  }
  if (result.failure.empty()) result.failure = syncFolder(target);
  if (result.failure.empty()) {
    result.files = made.size();
  } else {
    for (const std::string& place : made) deleteFile(place);
  }
  return result;
}

}  // namespace velra
