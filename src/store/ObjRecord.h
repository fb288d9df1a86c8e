// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

/// What a search found: the class of an object and its identifier.
struct ObjRecord {
  std::string strType;
  std::string strGUID;
};

}  // namespace velra
