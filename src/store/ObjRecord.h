// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "protocol/ObjectKind.h"

namespace velra {

/// What a search found: an object's kind and its identifier.
struct ObjRecord {
  ObjectKind kind;
  std::string strGUID;
};

}  // namespace velra
