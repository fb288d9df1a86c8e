// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra::test {

/// A schema of all seven classes with the fields that they look for by name, and with every value
/// type on the document.
extern const std::string kSmallSchema;

}  // namespace velra::test
