// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <libxml/tree.h>

#include <string>

namespace velra::xml {

/// True for a text of white space alone.
bool isBlankText(const xmlNode& node);

/// True for a text of white space alone that is all that its element holds.
bool isLoneBlank(const xmlNode& node);

/// The text of a list of nodes and of all below them, as XmlNode::text has it.
std::string textOf(const xmlNode* first);

/// True when the entities of a document stand for more than anybody would write.
bool expandsTooFar(const xmlDoc& document);

}  // namespace velra::xml
