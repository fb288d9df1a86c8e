// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "exchange/Content.h"

namespace velra {

class ApplicationModule;

/// Reads a document and closes it again. Nothing is written:
/// a save that was cut off is not finished but refused, and pictures that key frames lack are not
/// made. What cannot be read is shown in boxes and left out. Needs a factory in `app`, which
/// gets the vocabulary if it has none yet; the current folder is put back. Raises ExchangeFailure.
Content readContent(ApplicationModule& app, const std::string& path);

}  // namespace velra
