// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ExchangeFilters.h"

#include <string_view>

#include "base/Text.h"
#include "exchange/Export.h"
#include "exchange/imports/ImportFormats.h"

namespace velra {

namespace {

std::string patternsOf(std::string_view extensions) {
  return "*." + replaceAll(std::string(extensions), " ", ";*.");
}

std::string filterOf(std::string_view title, const std::string& patterns) {
  return std::string(title) + " (" + patterns + ")|" + patterns + "|";
}

}  // namespace

std::string exportFilters() {
  std::string filters;
  for (const ExportFormat* format : exportFormats()) {
    filters += filterOf(format->title, format->makesFolder ? "*" : patternsOf(format->extension));
  }
  return filters;
}

std::string importFilters(const std::string& all) {
  std::string patterns;
  std::string filters;
  for (const ImportFormat* format : importFormats()) {
    if (!format->read) continue;  // the last one
    patterns += (patterns.empty() ? "" : ";") + patternsOf(format->extensions);
    filters += filterOf(format->title, patternsOf(format->extensions));
  }
  return filterOf(all, patterns) + filters;
}

}  // namespace velra
