// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "protocol/ObjectKind.h"

namespace velra {

class ApplicationModule;
class FolderScans;
class IOManager;

/// The way from any object's file up to its document. Files name what is below them, so each step
/// of the ladder is a search; an expression names its parent or its Version itself.
class ParentFinder {
 public:
  ParentFinder(ApplicationModule& app, FolderScans& scans, const std::shared_ptr<IOManager>& io)
      : app_(app), scans_(scans), io_(io) {}

  /// The document of an object's file; "" when there is none.
  std::string strRetrieveAVDocGUIDFromGUID(const std::string& strGUID);

 private:
  std::string strGetParentGUID(const std::string& strGUID, ObjectKind kind);
  std::string parentOfExpression(const std::string& strGUID, ObjectKind kind);

  ApplicationModule& app_;
  FolderScans& scans_;
  const std::shared_ptr<IOManager> io_;
};

}  // namespace velra
