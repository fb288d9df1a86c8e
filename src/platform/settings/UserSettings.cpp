// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/settings/UserSettings.h"

#include <cstdlib>

#include "base/Paths.h"
#include "platform/files/Files.h"

namespace velra {
namespace {

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

}  // namespace

UserSettings::UserSettings(std::string path) : path_(std::move(path)), file_(path_) {}

std::string UserSettings::defaultPath() {
  // A relative path there would mean another place in each folder.
  const std::string wanted = environment("XDG_CONFIG_HOME");
  const std::string folder = wanted.starts_with('/') ? wanted : environment("HOME") + "/.config";
  return strAbsolutePath("velra/velra.ini", folder);
}

std::string UserSettings::read(const std::string& section, const std::string& key,
                               const std::string& defaultText) const {
  const auto line = file_.find(section, key);
  return line ? unescapedLine(*line) : defaultText;
}

void UserSettings::write(const std::string& section, const Texts& texts) {
  makeFolders(strAbsolutePath(folderOf(path_)));
  std::vector<SettingsFile::Line> lines;
  for (const auto& [key, text] : texts) lines.emplace_back(key, escapedLine(text));
  file_.set(section, lines);
}

}  // namespace velra
