// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

namespace velra {

class SchemaElement;
class XmlWriter;

/// Adds one element for each assigned field to the root, in the order of the fields.
/// kInvalidArgument for a value that XML cannot hold.
void WriteInstance(std::span<const SchemaElement> elements, XmlWriter& domDoc);

}  // namespace velra
