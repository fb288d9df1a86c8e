// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/settings/MachineSettings.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>

namespace velra {
namespace {

constexpr std::string_view kNumber = "dword:";
constexpr std::string_view kBytes = "hex:";

/// All of the text as hexadecimal digits, exactly as many as given.
std::optional<std::uint32_t> hexadecimal(std::string_view digits, std::size_t count) {
  std::uint32_t value = 0;
  const char* const end = digits.data() + digits.size();
  const auto [read, error] = std::from_chars(digits.data(), end, value, 16);
  if (digits.size() != count || error != std::errc() || read != end) return std::nullopt;
  return value;
}

std::string hexText(std::uint32_t value, int digits) {
  char buffer[16];
  std::snprintf(buffer, sizeof buffer, "%0*x", digits, value);
  return buffer;
}

/// Pairs of digits with commas between them.
std::optional<MachineSettings::Bytes> bytesOf(std::string_view text) {
  MachineSettings::Bytes bytes;
  while (!text.empty()) {
    const auto byte = hexadecimal(text.substr(0, 2), 2);
    const bool last = text.size() == 2;
    if (!byte || (!last && (text.size() < 5 || text[2] != ','))) return std::nullopt;
    bytes += static_cast<unsigned char>(*byte);
    text.remove_prefix(last ? 2 : 3);
  }
  return bytes;
}

struct LineOf {
  std::optional<std::string> operator()(const std::string& text) const {
    // Such a text would be taken for another kind when it is read.
    if (text.starts_with(kNumber) || text.starts_with(kBytes)) return std::nullopt;
    return escapedLine(text);
  }
  std::optional<std::string> operator()(std::uint32_t number) const {
    return std::string(kNumber) + hexText(number, 8);
  }
  std::optional<std::string> operator()(const MachineSettings::Bytes& bytes) const {
    std::string line(kBytes);
    for (const unsigned char byte : bytes) {
      if (line.size() > kBytes.size()) line += ',';
      line += hexText(byte, 2);
    }
    return line;
  }
};

}  // namespace

MachineSettings::MachineSettings(std::string path) : file_(std::move(path)) {}

std::string MachineSettings::defaultPath() {
  const char* path = std::getenv("VELRA_MACHINE_SETTINGS");
  return path && *path ? path : "/etc/velra/machine.ini";
}

std::optional<MachineSettings::Setting> MachineSettings::read(std::string_view section,
                                                              std::string_view name) const {
  const auto line = file_.find(section, name);
  if (!line) return std::nullopt;
  if (line->starts_with(kNumber)) return hexadecimal(line->substr(kNumber.size()), 8);
  if (line->starts_with(kBytes)) return bytesOf(line->substr(kBytes.size()));
  return unescapedLine(*line);
}

bool MachineSettings::write(std::string_view section, std::string_view name,
                            const Setting& setting) {
  const auto line = std::visit(LineOf{}, setting);
  return line && file_.set(section, {{std::string(name), *line}}).empty();
}

}  // namespace velra
