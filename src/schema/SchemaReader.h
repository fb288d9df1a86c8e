// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "schema/SchemaFile.h"

namespace velra {

class ApplicationModule;
class CloseLists;
class XmlNode;

/// Reads the declaration of one class out of a schema. It understands a small dialect, which
/// docs/file-formats.md describes; what it does not look at does not exist for it.
class SchemaReader {
 public:
  SchemaReader(const ApplicationModule& app, const XmlNode& root, CloseLists& lists)
      : app_(app), root_(root), lists_(lists) {}

  /// The fields of a class, those of its base type first. On failure the message is set and the
  /// fields are of no use.
  ClassDeclaration strLoadType(const std::string& strType);

 private:
  std::string loadClass(const std::string& strType);
  std::string loadInherited(const XmlNode& complexContent, const std::string& strType,
                            XmlNode& body);
  std::string strLoadBaseType(const std::string& strBase);
  std::string strReadElements(const XmlNode& node, const std::string& strType);
  void readFlags(const XmlNode& declaration, FieldDeclaration& field) const;
  void mapType(const std::string& prefix, const std::string& type, FieldDeclaration& field);
  void mapNamedType(const std::string& type, FieldDeclaration& field);
  bool clReadCloseList(const std::string& strName);
  XmlNode topLevel(const std::string& name) const;

  const ApplicationModule& app_;
  const XmlNode& root_;
  CloseLists& lists_;
  ClassDeclaration result_;
  FieldTable fields_;
};

}  // namespace velra
