// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "protocol/Expression.h"

namespace velra {

class ApplicationModule;
class FolderScans;

/// Finds and opens expressions. Nothing lists those of a Version or the segments of an expression,
/// so the folder is searched; each one that opens has its own segments found, and so on down.
class ExpressionFinder {
 public:
  ExpressionFinder(ApplicationModule& app, FolderScans& scans) : app_(app), scans_(scans) {}

  /// The main expressions of a Version, or the segments of an expression, in the order of the
  /// folder. What does not open is in the list with whatever was read of it.
  ExpressionList open(const ObjectRef& objParent, const std::shared_ptr<IOManager>& io);

 private:
  ExpressionRef openFound(ObjectKind kind, const std::string& guid, const ExpressionRef& parent,
                          const ObjectRef& version, const std::shared_ptr<IOManager>& io);
  ExpressionList openOfVersion(const ObjectRef& version, const std::shared_ptr<IOManager>& io);
  ExpressionList openOfExpression(const ExpressionRef& parent,
                                  const std::shared_ptr<IOManager>& io);

  ApplicationModule& app_;
  FolderScans& scans_;
  int depth_ = 0;  // of the expression that is being opened
};

}  // namespace velra
