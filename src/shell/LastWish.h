// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

class ApplicationModule;

/// Brings what was changed in the open document, and is not kept yet, to the store after a failure
/// that ends the program, which is waited for two seconds at most. What the person is told of it,
/// or "". Raises nothing.
std::string keepAtUntrappedError(ApplicationModule& app);

/// The same when the display is gone and nobody can be told.
void keepAtDisplayLoss(ApplicationModule& app);

}  // namespace velra
