// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/imports/ImportFormats.h"

#include <algorithm>

#include "base/Paths.h"
#include "base/Text.h"

namespace velra {

const std::vector<const ImportFormat*>& importFormats() {
  static const std::vector<const ImportFormat*> kFormats{
      &kTableImport, &kWebVttImport, &kSubRipImport, &kChaptersImport, &kEdlImport, &kShotsImport};
  return kFormats;
}

const ImportFormat* importFormat(std::string_view name) {
  const auto& formats = importFormats();
  const auto at = std::find_if(formats.begin(), formats.end(),
                               [&](const ImportFormat* format) { return format->name == name; });
  return at == formats.end() ? nullptr : *at;
}

const ImportFormat* importFormatOf(const std::string& path) {
  const std::string extension = asciiLower(strExtension(path));
  const auto& formats = importFormats();
  const auto at = std::find_if(formats.begin(), formats.end(), [&](const ImportFormat* format) {
    const auto own = split(format->extensions, ' ');
    return format->read && std::find(own.begin(), own.end(), extension) != own.end();
  });
  return at == formats.end() ? nullptr : *at;
}

}  // namespace velra
