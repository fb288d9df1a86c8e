// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "rescue/RescueRecords.h"

namespace velra {

/// What came of writing kept bytes into a folder.
struct KeptFiles {
  std::string failure;  // empty on success; else nothing was left in the folder
  std::size_t files = 0;
};

/// Writes the bytes of kept objects and pictures, as they are and under the names of their files,
/// into a folder, which is made when it is missing. A name that is taken there gets a number;
/// removed objects have no bytes.
KeptFiles writeKeptFiles(const std::vector<KeptObject>& kept, const std::string& folder);

}  // namespace velra
