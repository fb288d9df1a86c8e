#pragma once

#include <libxml/tree.h>

#include <string>

namespace velra::xml {

/// The text of a list of nodes and of all below them, as XmlNode::text has it.
std::string textOf(const xmlNode* first);

}  // namespace velra::xml
