// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/ExportFormats.h"

#include <algorithm>

namespace velra {

const std::vector<const ExportFormat*>& exportFormats() {
  static const std::vector<const ExportFormat*> kFormats{
      &kCsvFormat,        &kTsvFormat,    &kJsonLinesFormat, &kWebVttFormat, &kSubRipFormat,
      &kChaptersFormat,   &kEdlFormat,    &kHtmlFormat,      &kBagFormat,    &kManifestFormat,
      &kDublinCoreFormat, &kPbCoreFormat, &kEbuCoreFormat,
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
