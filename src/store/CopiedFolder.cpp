// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/CopiedFolder.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>

#include "base/Paths.h"
#include "platform/files/Files.h"
#include "platform/xml/XmlDocument.h"
#include "protocol/DescribedObject.h"
#include "protocol/MainWindow.h"
#include "store/DataFolder.h"
#include "store/FolderScans.h"
#include "store/ObjectRegistry.h"

namespace velra {

namespace {

constexpr std::uint64_t kPaintedTogether = 2048;  // objects, some two milliseconds

bool isOneFolder(const std::string& a, const std::string& b) {
  const FileStamp one = fileStamp(a);
  const FileStamp other = fileStamp(b);
  return one.exists && one.device == other.device && one.inode == other.inode;
}

/// The own data folder of a document, and what lies in it for objects that were read elsewhere.
class OwnFolder {
 public:
  OwnFolder(ObjectRegistry& objects, const std::string& document)
      : objects_(objects), folder_(dataFolderOf(document)) {}

  /// True when the folder holds the object's file, by name, and another folder's was read.
  bool hasCopyOf(const std::string& path) {
    return hasOther(path) && !objects_.find(folder_ + path.substr(folderOf(path).size()));
  }
  /// True when a path of another folder is one of this folder by its name.
  bool hasOther(const std::string& path) {
    // As nearly all, which needs no copy of the folder's name.
    if (path.rfind('/') + 1 == folder_.size() && path.starts_with(folder_)) return false;
    const std::string folder = folderOf(path);
    return folder != folder_ && holds(path.substr(folder.size())) && !isOwn(folder);
  }
  /// The class of that file.
  std::string classOfCopy(const std::string& path) const {
    XmlDocument copy;
    if (!copy.load(folder_ + path.substr(folderOf(path).size()))) return {};
    return std::string(copy.documentElement().baseName());
  }

 private:
  bool holds(const std::string& name) {
    if (!names_) {
      const auto listed = colListFiles(folder_ + "*.xml");
      names_.emplace(listed.begin(), listed.end());
    }
    return names_->contains(name);
  }
  // By another name, through a link.
  bool isOwn(const std::string& folder) {
    const auto [known, isNew] = own_.try_emplace(folder, false);
    if (isNew) known->second = isOneFolder(folder, folder_);
    return known->second;
  }

  ObjectRegistry& objects_;
  const std::string folder_;
  std::optional<std::set<std::string>> names_;
  std::map<std::string, bool> own_;
};

// Of a document that was moved the objects are missing; what it lists is all that there is.
class MissingObjects : public ReferenceVisitor {
 public:
  MissingObjects(ObjectRegistry& objects, OwnFolder& own) : objects_(objects), own_(own) {}

  void identifier(const std::string& guid) override {
    if (!other.empty() || objects_.find(guid)) return;
    const std::string path = strAbsolutePath(guid);
    if (own_.hasCopyOf(path)) other = folderOf(path);
  }
  void object(const DescribedObject&) override {}

  std::string other;

 private:
  ObjectRegistry& objects_;
  OwnFolder& own_;
};

}  // namespace

CopiedFolder copiedFolderOf(ObjectRegistry& objects, const DescribedObject& document,
                            const FolderScans& scans, MainWindow* window) {
  OwnFolder own(objects, document.strGUID());
  for (const auto& [number, registered] : objects.sequence()) {
    if (window && number % kPaintedTogether == 0) window->workWaits();
    const auto* object = as<const DescribedObject>(registered.get());
    if (!object || object == &document) continue;
    const std::string path = strAbsolutePath(object->strGUID());
    if (own.hasCopyOf(path) && own.classOfCopy(path) == object->className()) {
      return {folderOf(path), true};
    }
  }
  MissingObjects missing(objects, own);
  document.visitReferences(missing);
  if (!missing.other.empty()) return {missing.other, false};
  for (const std::string& path : scans.relativesOfRest(dataFolderOf(document.strGUID()))) {
    if (own.hasOther(path)) return {folderOf(path), false};
  }
  return {};
}

}  // namespace velra
