// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "app/Message.h"

namespace velra {

class AVDocument;
class ApplicationModule;
class MainWindow;

// What the commands ask and tell of the open document.

/// The title of one that was never saved.
inline constexpr const char* kUnsavedTitle = "AVDocument";

/// Null for none.
std::shared_ptr<AVDocument> openedDocument(const ApplicationModule& app);

/// False also for a document that failed to open: it stays set, with nothing registered.
bool documentIsOpen(const ApplicationModule& app);

/// The same, with a box that says so when none is open.
bool needsDocument(ApplicationModule& app);

/// The caption of a command without the marks that menus need.
std::string plainCaption(const ApplicationModule& app, Message command);

/// The status line names a command as its menu does, and what came of it.
void tellDone(const ApplicationModule& app, MainWindow& window, Message command,
              const std::string& outcome);

}  // namespace velra
