// SPDX-License-Identifier: GPL-3.0-or-later

// The searches of IOManager through the files of a folder.
#include <algorithm>
#include <utility>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "platform/UserInterface.h"
#include "protocol/ClassRules.h"
#include "protocol/ObjectFactory.h"
#include "protocol/OpenDocument.h"
#include "store/IOManager.h"
#include "store/ObjectRegistry.h"

namespace velra {

namespace {

// Deeper trees than any cataloguer makes, shallow enough for the stack.
constexpr int kDeepestExpression = 400;

class Deeper {
 public:
  explicit Deeper(int& depth) : depth_(depth) {
    if (depth_ >= kDeepestExpression) raise(kOutOfStack);
    ++depth_;
  }
  ~Deeper() { --depth_; }
  Deeper(const Deeper&) = delete;
  Deeper& operator=(const Deeper&) = delete;

 private:
  int& depth_;
};

bool bRelated(const DescribedObject& object, FolderScan::Relation relation,
              const std::string& strClass, const std::string& strGUID) {
  const auto* expression = dynamic_cast<const Expression*>(&object);
  if (relation == FolderScan::Relation::PartOf && expression) {
    return expression->bCheckIfSubExpression(strClass, strGUID);
  }
  return object.bCheckIfOwnRelative(strClass, strGUID);
}

std::vector<std::string> classesWanted(const std::string& strWantedClass) {
  if (strWantedClass.empty()) return {"Audio", "Transcript", "Video"};
  return {strWantedClass};
}

}  // namespace

FolderScan& IOManager::scanOf(const std::string& folder) {
  if (scanGeneration_ != currentFolderGeneration()) {
    // Relative references mean other paths now.
    scanGeneration_ = currentFolderGeneration();
    scans_.clear();
    fresh_.clear();
  }
  const std::string key = withSeparator(strAbsolutePath(folder));
  FolderScan& scan = scans_.try_emplace(key, key).first->second;
  const bool fresh = openings_ > 0 && !fresh_.insert(key).second;
  if (!fresh) scan.refresh(app_, *app_.gAVDoc);
  if (!scan.reason().empty()) unlisted_ = key + " cannot be listed (" + scan.reason() + ")";
  return scan;
}

std::vector<ObjRecord> IOManager::colScanRelatives(const std::string& strGUID,
                                                   const std::string& strClass,
                                                   const std::string& strRelation,
                                                   const std::string& strWantedClass) {
  std::vector<ObjRecord> records;
  if (!bFileSystem_) return records;
  if (!app_.gAVDoc) raise(kNoObject);
  std::string folder;
  const std::string ownName = strSplitPath(strGUID, folder);
  if (strWantedClass == "AVDocument") folder += "../";
  const auto relation =
      strRelation.starts_with("PartOf") ? FolderScan::Relation::PartOf : FolderScan::Relation::Own;
  const std::vector<std::string> classes = classesWanted(strWantedClass);
  const FolderScan& scan = scanOf(folder);
  for (const std::size_t offset : scan.relevant(relation, classes, strGUID)) {
    const ScannedFile& file = scan.file(offset);
    if (std::string_view(file.name).substr(0, file.name.rfind('.')) == ownName) continue;
    ObjRecord record;
    if (considerFile(folder + file.name, file, classes, relation, strClass, strGUID, record)) {
      records.push_back(std::move(record));
    }
  }
  return records;
}

bool IOManager::considerFile(const std::string& path, const ScannedFile& file,
                             const std::vector<std::string>& classes, FolderScan::Relation relation,
                             const std::string& strClass, const std::string& strGUID,
                             ObjRecord& record) {
  const ObjectRef loaded = app_.gAVDoc->loadedObject(path);
  if (!loaded && !file.reason.empty()) {
    app_.ui.messageBox("XML Parser: " + file.reason, BoxKind::Exclamation);
    return false;
  }
  record.strType = loaded ? loaded->className() : file.className;
  record.strGUID = loaded ? loaded->strGUID() : path;
  if (std::find(classes.begin(), classes.end(), record.strType) == classes.end()) return false;
  if (loaded) return bRelated(*loaded, relation, strClass, strGUID);
  if (file.error) throw file.error->inFile(path);
  if (!file.message.empty()) app_.ui.messageBox(file.message);
  return file.message.empty();
}

std::optional<LoadedFields> IOManager::takeLoadedFields(const std::string& strGUID,
                                                        const std::string& className) {
  if (openings_ == 0) return std::nullopt;
  const std::string path = strAbsolutePath(strGUID);
  const std::string folder = folderOf(path);
  const auto scan = scans_.find(folder);
  if (scan == scans_.end()) return std::nullopt;
  return scan->second.takeFields(path.substr(folder.size()), className);
}

ExpressionList IOManager::colScanForExpressions(const ObjectRef& objParent) {
  const Opening opening(*this);
  if (const auto expression = std::dynamic_pointer_cast<Expression>(objParent)) {
    return scanForExpression(expression);
  }
  return scanForVersion(objParent);
}

ExpressionRef IOManager::openFound(const std::string& className, const std::string& guid,
                                   const ExpressionRef& parent, const ObjectRef& version) {
  const Deeper deeper(depth_);
  ExpressionRef found = app_.objectFactory->createExpression(className);
  if (parent) found->setObjMainExpr(parent);
  found->setVerVersion(version);
  // What does not open is in the result with whatever was read of it.
  found->strOpen(guid, app_.objectFactory->createForm(className), shared_from_this());
  return found;
}

ExpressionList IOManager::scanForVersion(const ObjectRef& version) {
  ExpressionList found;
  for (const ObjRecord& record :
       colScanRelatives(version->strGUID(), "Version", "VersionGUID", "")) {
    const ObjectRef loaded = app_.gAVDoc->loadedObject(record.strGUID);
    found.push_back(loaded ? std::dynamic_pointer_cast<Expression>(loaded)
                           : openFound(record.strType, record.strGUID, nullptr, version));
  }
  return found;
}

ExpressionList IOManager::scanForExpression(const ExpressionRef& parent) {
  const std::string& className = parent->className();
  ExpressionList found;
  ExpressionRef last;
  for (const ObjRecord& record :
       colScanRelatives(parent->strGUID(), className, "PartOf" + className, className)) {
    if (!app_.gAVDoc->loadedObject(record.strGUID)) {
      last = openFound(className, record.strGUID, parent, parent->verVersion());
    } else if (className != "Video") {
      // Only a damaged document has a segment that is open before its parent.
      raise(kTypeMismatch);
    }
    found.push_back(last);
  }
  return found;
}

}  // namespace velra
