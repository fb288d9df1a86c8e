// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/DataFolder.h"

#include <sys/random.h>

#include <array>
#include <cstdint>
#include <cstdio>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "platform/files/Files.h"

namespace velra {

std::string dataFolderOf(const std::string& strAVDocPathName) {
  std::string folder;
  const std::string base = strSplitPath(strAVDocPathName, folder);
  return withSeparator(strAbsolutePath(folder)) + base + "_files/";
}

std::string strMakeDataFolder(const ApplicationModule& app, const std::string& strAVDocPathName) {
  const std::string folder = dataFolderOf(strAVDocPathName);
  return bFolderExists(folder) ? std::string() : strMakeFolder(app, folder);
}

std::string strMakeFolder(const ApplicationModule& app, const std::string& path) {
  std::string name = path;
  while (name.size() > 1 && name.back() == '/') name.pop_back();
  const bool taken = fileStamp(name).exists;
  const std::string reason = taken ? std::string() : makeFolder(name);
  if (!taken && reason.empty()) return {};
  return app.LoadResString(Message::FolderNotCreated) + " " + path + " (" + reason + ")";
}

std::string strMakeGUIDText() {
  std::array<std::uint8_t, 16> bytes{};
  if (::getrandom(bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size())) {
    raise(kInvalidArgument, "random bytes");
  }
  std::string text;
  for (const std::uint8_t byte : bytes) {
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02x", byte);
    text += digits;
  }
  return text;
}

}  // namespace velra
