// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>

#include "exchange/Content.h"

namespace velra {

class ApplicationModule;
class AVDocument;

/// Everything that an open document says. The current folder is the document's. An object that a
/// damaged document holds in two places is met in the first alone. `progress`, if any, is told how
/// many objects are read.
Content contentOf(const ApplicationModule& app, const AVDocument& document,
                  const std::function<void(std::size_t)>& progress = {});

}  // namespace velra
