// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "exchange/imports/Import.h"

namespace velra {

class ApplicationModule;

/// Opens a document, takes what a file proposes (`path` is nothing to shots), and saves it when
/// anything was taken. It is saved at the end alone, and not while another window has it open.
/// Needs a factory in the application, and its store of unsaved work, which makes the save safe.
/// What single objects have to say is shown. Raises ExchangeFailure: then the files of the document
/// are what they were, but for a save that had been cut off, which is finished.
ImportReport importIntoDocument(ApplicationModule& app, const std::string& document,
                                const ImportFormat& format, const std::string& path,
                                const ImportOptions& options);

}  // namespace velra
