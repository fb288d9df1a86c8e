// SPDX-License-Identifier: GPL-3.0-or-later

// A settings file: what it says survives the writing of another value.

#include "fuzz/FuzzSession.h"
#include "platform/settings/SettingsFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static velra::fuzz::FuzzSession session;
  const std::string path = session.file(data, size, "settings.ini");
  velra::SettingsFile before(path);
  const auto kept = before.find("Settings", "MainLeft");
  const std::string text(kept.value_or(""));
  const bool was = kept.has_value();

  velra::fuzz::require(velra::SettingsFile(path).set("Settings", {{"MainTop", "12"}}).empty());
  velra::SettingsFile after(path);
  velra::fuzz::require(after.find("Settings", "MainTop") == "12");
  const auto now = after.find("Settings", "MainLeft");
  velra::fuzz::require(now.has_value() == was && now.value_or("") == text);
  return 0;
}
