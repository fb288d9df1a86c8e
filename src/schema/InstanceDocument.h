#pragma once

#include <string>

namespace velra {

/// An object's own document between its reads and writes: all but the content of its root, which is
/// made anew from the fields at each save. So nothing of the file but the values is kept in memory.
class InstanceDocument {
 public:
  InstanceDocument() = default;
  explicit InstanceDocument(std::string shell) : shell_(std::move(shell)) {}

  /// A new document with an empty root and the two attributes that name its schema.
  static InstanceDocument create(const std::string& rootName);

  bool empty() const { return shell_.empty(); }
  const std::string& shell() const { return shell_; }

  /// Writes the schema's attributes on the root: the file name of the path, without its folder.
  void setSchemaPath(const std::string& schemaPath);

 private:
  std::string shell_;
};

}  // namespace velra
