// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/SystemInfo.h"

#include "app/ApplicationModule.h"
#include "platform/files/Files.h"

namespace velra {

std::string systemInfoTool(const ApplicationModule& app) {
  std::string tool;
  if (!app.bRegRead("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH", tool)) {
    if (!app.bRegRead("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO", tool)) return {};
    tool += "/MSINFO32.EXE";
  }
  return bFileExists(tool) ? tool : std::string();
}

}  // namespace velra
