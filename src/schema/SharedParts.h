// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/xml/XmlShell.h"
#include "schema/CloseList.h"
#include "schema/SchemaFile.h"

namespace velra {

/// What the fields of all objects of one document share: the schema, the closed lists in it, and
/// the shells of the files.
struct SharedParts {
  explicit SharedParts(const ApplicationModule& app) : schemas(app) {}

  DocumentSchemas schemas;
  CloseLists collCloseListTypes;
  XmlShells shells;
};

}  // namespace velra
