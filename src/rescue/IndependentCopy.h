// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "rescue/RescueRecords.h"

namespace velra {

/// What has to be written so that a document, with the objects in its own data folder, refers to
/// these alone and by relative paths: then both can be moved and copied together. An identifier
/// that leads to a file of that name in any folder is taken for one of them. What is no XML in the
/// folder is left alone; a document that cannot be read gives the reason, else "".
std::string planIndependentCopy(const std::string& document, SavePlan& plan);

/// Writes the files of the plan. On failure each is as it was, and the sentence tells why; else "".
std::string writeIndependentCopy(const SavePlan& plan);

}  // namespace velra
