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
  Relation relation;
  std::vector<ObjectKind> wanted;
  ObjectKind kind;  // of the object that is pointed at
  std::string strGUID;
};

bool bRelated(const DescribedObject& object, const Question& question) {
  const auto* expression = as<const Expression>(&object);
  if (question.relation == Relation::PartOf && expression) {
    return expression->bCheckIfSubExpression(question.kind, question.strGUID);
  }
  return object.bCheckIfOwnRelative(question.kind, question.strGUID);
}

// A loaded object answers for its file. Of the others, the scan has chosen those that point at the
// object and those that have to be reported.
bool considerFile(ApplicationModule& app, const std::string& path, const ScannedFile& file,
                  const Question& question, ObjRecord& record) {
  const RegisteredRef loaded = app.gAVDoc->loadedObject(path);
  if (!loaded && !file.reason.empty()) {
    app.ui.messageBox("XML Parser: " + file.reason, BoxKind::Exclamation);
    return false;
  }
  const std::optional<ObjectKind> kind = loaded ? loaded->kind() : file.kind;
  const auto& wanted = question.wanted;
  if (!kind || std::find(wanted.begin(), wanted.end(), *kind) == wanted.end()) return false;
  record = {*kind, loaded ? loaded->strGUID() : path};
  if (const auto* object = as<DescribedObject>(loaded.get())) return bRelated(*object, question);
  if (file.error) throw file.error->inFile(path);
  if (!file.message.empty()) app.ui.messageBox(file.message);
  return file.message.empty();
}

}  // namespace

std::vector<ObjRecord> colScanRelatives(ApplicationModule& app, FolderScans& scans,
                                        const std::string& strGUID, ObjectKind kind,
                                        Relation relation, const std::vector<ObjectKind>& wanted) {
  std::string folder;
  const std::string ownName = strSplitPath(strGUID, folder);
  if (wanted.front() == ObjectKind::AVDocument) folder += "../";
  const Question question{relation, wanted, kind, strGUID};
  std::vector<ObjRecord> records;
  for (const ScannedFile* file : scans.relevant(folder, relation, wanted, strGUID)) {
    if (std::string_view(file->name).substr(0, file->name.rfind('.')) == ownName) continue;
    ObjRecord record;
    if (considerFile(app, folder + file->name, *file, question, record)) {
      records.push_back(std::move(record));
    }
  }
  return records;
}

}  // namespace velra
