// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>

namespace velra {

class ApplicationModule;
class SchemaElement;
class XmlDocument;
struct ClassDeclaration;

/// Fills the fields of an object of a class from its parsed file. A bad value of a known field is
/// no error: the field turns unassigned. A message when the file is of another class, else "". A
/// time that is no number raises kTypeMismatch. Texts still stand in the document then, which has
/// to outlive them.
std::string strReadInstance(const ApplicationModule& app, const XmlDocument& domDoc,
                            const std::string& strClassName, const ClassDeclaration& declaration,
                            std::span<SchemaElement> elements);

}  // namespace velra
