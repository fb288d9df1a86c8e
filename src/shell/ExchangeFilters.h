// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

/// The filters of a file dialog: one for each format of exports, in their order.
std::string exportFilters();

/// One for all formats of imports, under the given text, and one for each. Which format it is the
/// name of the file tells where the first is chosen.
std::string importFilters(const std::string& all);

}  // namespace velra
