// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "exchange/ExportFormat.h"

namespace velra {

extern const ExportFormat kCsvFormat;
extern const ExportFormat kTsvFormat;
extern const ExportFormat kJsonLinesFormat;
extern const ExportFormat kWebVttFormat;
extern const ExportFormat kSubRipFormat;
extern const ExportFormat kChaptersFormat;
extern const ExportFormat kEdlFormat;

const std::vector<const ExportFormat*>& exportFormats() {
  static const std::vector<const ExportFormat*> kFormats{
      &kCsvFormat,    &kTsvFormat,      &kJsonLinesFormat, &kWebVttFormat,
      &kSubRipFormat, &kChaptersFormat, &kEdlFormat,
  };
  return kFormats;
}

const ExportFormat* exportFormat(std::string_view name) {
  const auto& formats = exportFormats();
  const auto at = std::find_if(formats.begin(), formats.end(),
                               [&](const ExportFormat* format) { return format->name == name; });
  return at == formats.end() ? nullptr : *at;
}

}  // namespace velra
