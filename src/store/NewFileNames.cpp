// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/NewFileNames.h"

#include "base/Paths.h"
#include "base/Text.h"
#include "store/DataFolder.h"
#include "store/ObjectRegistry.h"

namespace velra {

namespace {

std::string prefixOf(ObjectKind kind, const std::string& strAVDocPathName) {
  std::string folder;
  const std::string base = strSplitPath(strAVDocPathName, folder);
  return dataFolderOf(strAVDocPathName) + base + "_" + asciiLower(classNameOf(kind));
}

}  // namespace

std::string NewFileNames::give(ObjectRegistry& objects, ObjectKind kind,
                               const std::string& extension, const std::string& strAVDocPathName) {
  if (kind == ObjectKind::AVDocument) {
    std::string folder;
    const std::string base = strSplitPath(strAVDocPathName, folder);
    return withSeparator(strAbsolutePath(folder)) + base + ".xml";
  }
  // Whoever has it listed has made it.
  std::string message = listing_ ? std::string() : strMakeDataFolder(app_, strAVDocPathName);
  if (!message.empty()) return message;
  const std::string prefix = prefixFor(kind, strAVDocPathName);
  return *promised_.insert(objects.numbers().take(prefix, "." + extension)).first;
}

// A Save As asks for tens of thousands.
std::string NewFileNames::prefixFor(ObjectKind kind, const std::string& strAVDocPathName) const {
  if (!listing_ || listing_->document_ != strAVDocPathName) return prefixOf(kind, strAVDocPathName);
  std::string& prefix = listing_->prefixes_[kind];
  if (prefix.empty()) prefix = prefixOf(kind, strAVDocPathName);
  return prefix;
}

void NewFileNames::came(const std::string& path) {
  if (listing_) listing_->listing_.fileCame(path);
  promised_.erase(path);
}

void NewFileNames::went(const std::string& path) {
  if (listing_) listing_->listing_.fileWent(path);
}

void NewFileNames::withdrawn(const std::string& path) {
  promised_.erase(path);
  went(path);
}

NewFileNames::Listing::Listing(NewFileNames& names, ObjectRegistry& objects,
                               const std::string& strAVDocPathName)
    : names_(names),
      listing_(objects.numbers(), dataFolderOf(strAVDocPathName)),
      document_(strAVDocPathName) {
  names_.listing_ = this;
}

NewFileNames::Listing::~Listing() {
  names_.listing_ = nullptr;
}

}  // namespace velra
