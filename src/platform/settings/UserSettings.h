// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/settings/SettingsFile.h"

namespace velra {

/// The per-user store: texts by section and key in a text file, written whole and at once. The
/// folders above it are made when something is first written.
class UserSettings {
 public:
  explicit UserSettings(std::string path);

  /// `$XDG_CONFIG_HOME/velra/velra.ini`, by default below `~/.config`.
  static std::string defaultPath();

  /// The text of a key, or the default when it is missing.
  std::string read(const std::string& section, const std::string& key,
                   const std::string& defaultText) const;

  /// Keys and their texts.
  using Texts = std::vector<std::pair<std::string, std::string>>;
  /// Sets texts of a section, all in one writing. A store that cannot be written keeps what it had,
  /// without a word: losing a window's place is no reason to disturb.
  void write(const std::string& section, const Texts& texts);

 private:
  std::string path_;
  mutable SettingsFile file_;  // reads the file again when it has changed
};

}  // namespace velra
