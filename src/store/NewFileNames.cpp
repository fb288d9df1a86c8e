// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/NewFileNames.h"

#include "base/Paths.h"
#include "base/Text.h"
#include "store/DataFolder.h"
#include "store/ObjectRegistry.h"

namespace velra {

std::string NewFileNames::give(ObjectRegistry& objects, ObjectKind kind,
                               const std::string& extension, const std::string& strAVDocPathName) {
  std::string folder;
  const std::string base = strSplitPath(strAVDocPathName, folder);
  if (kind == ObjectKind::AVDocument) return withSeparator(strAbsolutePath(folder)) + base + ".xml";
  // Whoever has it listed has made it.
  std::string message = listing_ ? std::string() : strMakeDataFolder(app_, strAVDocPathName);
  if (!message.empty()) return message;
  const std::string prefix =
      dataFolderOf(strAVDocPathName) + base + "_" + asciiLower(classNameOf(kind));
  return *promised_.insert(objects.numbers().take(prefix, "." + extension)).first;
}

void NewFileNames::came(const std::string& path) {
  if (listing_) listing_->fileCame(path);
  promised_.erase(path);
}

void NewFileNames::went(const std::string& path) {
  if (listing_) listing_->fileWent(path);
}

void NewFileNames::withdrawn(const std::string& path) {
  promised_.erase(path);
  went(path);
}

NewFileNames::Listing::Listing(NewFileNames& names, ObjectRegistry& objects,
                               const std::string& strAVDocPathName)
    : names_(names), listing_(objects.numbers(), dataFolderOf(strAVDocPathName)) {
  names_.listing_ = &listing_;
}

}  // namespace velra
