// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <random>
#include <string>
#include <vector>

#include "support/DocumentFiles.h"

namespace velra::test {

/// What a generated document may have wrong with it.
struct Damage {
  bool missingFiles = false;
  bool wrongClasses = false;
  bool brokenFiles = false;
  bool doubleReferences = false;  // a child listed twice, or by two parents
  bool strangers = false;         // other people's files in the data folder
  bool tangledSegments = false;   // segments that also claim a Version, or a place in a ring

  static Damage none() { return {}; }
  static Damage some(std::mt19937& random);
};

/// A document with a random ladder and random trees of segments. Returns the names of its objects.
std::vector<std::string> writeRandomDocument(const DocumentFiles& files, std::mt19937& random,
                                             const Damage& damage);

/// A whole number from 0 to `most`.
int upTo(std::mt19937& random, int most);

}  // namespace velra::test
