// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <utility>

namespace velra {

class XmlShell;

/// An object's own document between its reads and writes: all but the content of its root, which is
/// made anew from the fields at each save. So nothing of the file but the values is kept in memory.
class InstanceDocument {
 public:
  /// Shells are shared, since those of a class's objects are nearly always the same.
  using Shell = std::shared_ptr<const XmlShell>;

  InstanceDocument() = default;
  explicit InstanceDocument(Shell shell) : shell_(std::move(shell)) {}

  /// A new document with an empty root and the two attributes that name its schema.
  static InstanceDocument create(const std::string& rootName);

  bool empty() const;
  const XmlShell& shell() const;

  /// Writes the schema's attributes on the root: the file name of the path, without its folder.
  void setSchemaPath(const std::string& schemaPath);

 private:
  Shell shell_;
};

}  // namespace velra
