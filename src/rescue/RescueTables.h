// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "platform/database/Database.h"
#include "platform/files/Files.h"

namespace velra {

/// Makes the tables of a store that has none, and brings those of an older one up to date. Raises
/// DatabaseError, also for a store of a later version.
void makeRescueTables(Database& database);

/// The stamp of a file as the store compares it: without the device, whose number another start of
/// the machine may change.
FileStamp keptStamp(const std::string& path);

/// A stamp takes three places of a statement and three columns of a row.
Statement& bindStamp(Statement& statement, int place, const FileStamp& stamp);
FileStamp stampFrom(const Statement& row, int column);

}  // namespace velra
