// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/LinkFile.h"

#include <algorithm>

#include "app/ApplicationModule.h"
#include "base/Text.h"
#include "platform/UserInterface.h"
#include "platform/files/Files.h"

namespace velra {

namespace {

// No identifier is longer; of a movie that was opened by mistake no more need be read.
constexpr std::uint64_t kLongestLine = 65536;

}  // namespace

std::string strReadFirstLine(ApplicationModule& app, const std::string& path) {
  if (!bFileExists(path) && !bFolderExists(path)) {
    app.ui.messageBox(app.LoadResString(Message::ObjectNotFound) + " " + path,
                      BoxKind::Exclamation);
    return {};
  }
  std::string line = readStart(path, kLongestLine).bytes;
  line.resize(std::min(line.size(), line.find('\n')));
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return replaceAll(std::move(line), " ", "");
}

}  // namespace velra
