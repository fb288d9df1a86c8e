// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/RelativeSearch.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "platform/UserInterface.h"
#include "protocol/Expression.h"
#include "protocol/OpenDocument.h"
#include "store/FolderScans.h"

namespace velra {

namespace {

/// What a search asks of each file of the folder.
struct Question {
  FolderScan::Relation relation;
  std::vector<std::string> wantedClasses;
  std::string strClass;
  std::string strGUID;
};

bool bRelated(const DescribedObject& object, const Question& question) {
  const auto* expression = dynamic_cast<const Expression*>(&object);
  if (question.relation == FolderScan::Relation::PartOf && expression) {
    return expression->bCheckIfSubExpression(question.strClass, question.strGUID);
  }
  return object.bCheckIfOwnRelative(question.strClass, question.strGUID);
}

std::vector<std::string> classesWanted(const std::string& strWantedClass) {
  if (strWantedClass.empty()) return {"Audio", "Transcript", "Video"};
  return {strWantedClass};
}

// A loaded object answers for its file. Of the others, the scan has chosen those that point at the
// object and those that have to be reported.
bool considerFile(ApplicationModule& app, const std::string& path, const ScannedFile& file,
                  const Question& question, ObjRecord& record) {
  const ObjectRef loaded = app.gAVDoc->loadedObject(path);
  if (!loaded && !file.reason.empty()) {
    app.ui.messageBox("XML Parser: " + file.reason, BoxKind::Exclamation);
    return false;
  }
  record.strType = loaded ? loaded->className() : file.className;
  record.strGUID = loaded ? loaded->strGUID() : path;
  const auto& classes = question.wantedClasses;
  if (std::find(classes.begin(), classes.end(), record.strType) == classes.end()) return false;
  if (loaded) return bRelated(*loaded, question);
  if (file.error) throw file.error->inFile(path);
  if (!file.message.empty()) app.ui.messageBox(file.message);
  return file.message.empty();
}

}  // namespace

std::vector<ObjRecord> colScanRelatives(ApplicationModule& app, FolderScans& scans,
                                        const std::string& strGUID, const std::string& strClass,
                                        const std::string& strRelation,
                                        const std::string& strWantedClass) {
  std::string folder;
  const std::string ownName = strSplitPath(strGUID, folder);
  if (strWantedClass == "AVDocument") folder += "../";
  const Question question{
      strRelation.starts_with("PartOf") ? FolderScan::Relation::PartOf : FolderScan::Relation::Own,
      classesWanted(strWantedClass), strClass, strGUID};
  const FolderScan& scan = scans.of(folder);
  std::vector<ObjRecord> records;
  for (const std::size_t offset :
       scan.relevant(question.relation, question.wantedClasses, strGUID)) {
    const ScannedFile& file = scan.file(offset);
    if (std::string_view(file.name).substr(0, file.name.rfind('.')) == ownName) continue;
    ObjRecord record;
    if (considerFile(app, folder + file.name, file, question, record)) {
      records.push_back(std::move(record));
    }
  }
  return records;
}

}  // namespace velra
