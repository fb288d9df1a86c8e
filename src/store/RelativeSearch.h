// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "store/ObjRecord.h"
#include "store/ScannedFile.h"

namespace velra {

class ApplicationModule;
class FolderScans;

/// Finds the objects of the wanted kinds that point at the given object of the given kind, in its
/// folder or, for documents, in the one above: the way against the references, since the files hold
/// none upward. In the order of the folder; broken files are reported in boxes.
std::vector<ObjRecord> colScanRelatives(ApplicationModule& app, FolderScans& scans,
                                        const std::string& strGUID, ObjectKind kind,
                                        Relation relation, const std::vector<ObjectKind>& wanted);

}  // namespace velra
