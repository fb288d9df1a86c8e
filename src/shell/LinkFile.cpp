#include "shell/LinkFile.h"

#include "app/ApplicationModule.h"
#include "base/Text.h"
#include "platform/Files.h"
#include "platform/UserInterface.h"

namespace velra {

namespace {

// No identifier is longer; a movie that was opened by mistake need not be read.
constexpr std::uint64_t kLargestLinkFile = 65536;

}  // namespace

std::string strReadFirstLine(ApplicationModule& app, const std::string& path) {
  if (!bFileExists(path)) {
    app.ui.messageBox(app.LoadResString(1131) + " " + path, BoxKind::Exclamation);
    return {};
  }
  const FileBytes file = readFile(path, kLargestLinkFile);
  std::string line = file.bytes.substr(0, file.bytes.find('\n'));
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return replaceAll(std::move(line), " ", "");
}

}  // namespace velra
