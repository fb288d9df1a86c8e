// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "schema/FieldDeclaration.h"

namespace velra {

/// The type of a field as JSON and catalogues call it, "string" for what has no name of its own.
const char* fieldTypeName(tyType type);

}  // namespace velra
