// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "exchange/ExportFormat.h"

namespace velra {

// Each is made by a file in formats/.
extern const ExportFormat kCsvFormat;
extern const ExportFormat kTsvFormat;
extern const ExportFormat kJsonLinesFormat;
extern const ExportFormat kWebVttFormat;
extern const ExportFormat kSubRipFormat;
extern const ExportFormat kChaptersFormat;
extern const ExportFormat kEdlFormat;
extern const ExportFormat kHtmlFormat;
extern const ExportFormat kBagFormat;
extern const ExportFormat kManifestFormat;
extern const ExportFormat kDublinCoreFormat;
extern const ExportFormat kPbCoreFormat;
extern const ExportFormat kEbuCoreFormat;

}  // namespace velra
