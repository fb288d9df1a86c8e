// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "platform/settings/SettingsFile.h"

namespace velra {

/// The machine-wide store: a text file of sections `[SOFTWARE\Velra]` with lines `Name=value`.
/// Text stands as it is (`\\` and `\n` for a backslash and a line feed), a 32-bit number as
/// `dword:` and eight hexadecimal digits, anything else as `hex:` and bytes of two digits with
/// commas between them. Comments, unknown sections and values and their order survive a write. The
/// file is looked at anew when it has changed.
class MachineSettings {
 public:
  using Bytes = std::basic_string<unsigned char>;
  using Setting = std::variant<std::string, std::uint32_t, Bytes>;

  explicit MachineSettings(std::string path);

  /// The path in VELRA_MACHINE_SETTINGS if that is set, else the system's place for it.
  static std::string defaultPath();

  /// The value of a name in a section; nothing when the file, the section or the name is missing,
  /// or when the digits of a number or of bytes are malformed.
  std::optional<Setting> read(std::string_view section, std::string_view name) const;

  /// Sets a value; the file is written whole and at once. False when it cannot be written,
  /// or for a text that would be read as another kind.
  bool write(std::string_view section, std::string_view name, const Setting& setting);

 private:
  mutable SettingsFile file_;  // reads the file again when it has changed
};

}  // namespace velra
