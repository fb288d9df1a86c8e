// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/files/Files.h"

namespace velra {

/// A text file of sections `[section]` with lines `name=text`, as both settings stores have it.
/// Lines that begin with ";", unknown ones and their order survive a write; a line that is neither
/// of these is kept and means nothing. Of two lines with one name the first counts. The file is
/// read again only when its stamp has changed.
class SettingsFile {
 public:
  explicit SettingsFile(std::string path) : path_(std::move(path)) {}

  /// What stands behind "=", up to the end of the line; good until the next call.
  std::optional<std::string_view> find(std::string_view section, std::string_view name);

  /// A name and its text, without line ends.
  using Line = std::pair<std::string, std::string>;
  /// Sets texts and writes the file, whole and at once. The failure's description or "". A file
  /// that is there and cannot be read is left alone.
  std::string set(std::string_view section, const std::vector<Line>& lines);

 private:
  using Names = std::map<std::string, std::size_t, std::less<>>;
  struct Section {
    Names lineOfName;
    std::size_t lastLine = 0;  // the last one that says anything
  };

  void refresh();
  void index();
  void place(std::string_view section, std::string_view name, std::string line);
  std::string bytes() const;

  std::string path_;
  FileStamp stamp_;
  std::string reason_;  // why a file that is there cannot be read
  std::vector<std::string> lines_;
  std::map<std::string, Section, std::less<>> sections_;
};

/// A text as a line can hold it, and back: `\\` and `\n` stand for a backslash and a line feed. Any
/// other backslash stands for itself.
std::string escapedLine(std::string_view text);
std::string unescapedLine(std::string_view line);

}  // namespace velra
