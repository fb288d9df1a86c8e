// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "store/ObjRecord.h"

namespace velra {

class ApplicationModule;
class FolderScans;

/// Finds the objects that point at the given object of the given class, in its folder or, for
/// documents, in the one above: the way against the references, since the files hold none upward.
/// Of a relation only its first letters count: "PartOf" asks for the parts of an expression,
/// anything else for those that the classes of the ladder hold. `strWantedClass` is what the found
/// ones are;
/// "" for any expression. In the order of the folder; broken files are reported in boxes.
std::vector<ObjRecord> colScanRelatives(ApplicationModule& app, FolderScans& scans,
                                        const std::string& strGUID, const std::string& strClass,
                                        const std::string& strRelation,
                                        const std::string& strWantedClass);

}  // namespace velra
