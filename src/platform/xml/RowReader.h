// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "platform/xml/XmlRow.h"

/// The two ways from the bytes of a file to its row. For the files of this folder and their tests.
namespace velra::xml {

/// The rule: the library makes its tree, which is walked. Bytes belong to a path, in whose folder a
/// document type may lie. On failure the result is null and `reason` holds one line.
Row rowByTree(const std::string& bytes, const std::string& path, std::string& reason);

/// The same row without a tree, in three fifths of the time: the library tells of elements and
/// texts one after the other. Null for a file that holds anything else, in which the library finds
/// anything to say, or which comes near any bound; nothing else is known of such a file then.
Row plainRow(const std::string& bytes);

}  // namespace velra::xml
