// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/FolderScan.h"

#include <algorithm>
#include <utility>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "platform/xml/XmlDocument.h"
#include "protocol/ClassRules.h"
#include "protocol/MainWindow.h"
#include "protocol/OpenDocument.h"
#include "schema/SchemaFile.h"
#include "store/ParsedAhead.h"

namespace velra {

namespace {

std::string relationKey(FolderScan::Relation relation, ObjectKind kind, const std::string& path) {
  return (relation == FolderScan::Relation::Own ? "own|" : "part|") + classNameOf(kind) + "|" +
         path;
}

void noteRelations(const SEColl& secol, const ClassRules& rules, ScannedFile& file) {
  file.ownRelatives.clear();
  if (!rules.relationField.empty()) {
    const StringList* list = secol.relationList(rules.relationField);
    for (const std::string& guid : list ? *list : StringList{}) {
      file.ownRelatives.push_back(strAbsolutePath(guid));
    }
  }
  if (rules.partOfField.empty()) return;
  const std::string version = secol.relationText(kVersionGuidField);
  if (!version.empty()) file.ownRelatives.push_back(strAbsolutePath(version));
  const std::string parent = secol.relationText(rules.partOfField);
  file.partOf = parent.empty() ? std::string() : strAbsolutePath(parent);
}

void readFields(ApplicationModule& app, OpenDocument& document, const XmlDocument& parsed,
                const ClassRules& rules, ScannedFile& file) {
  LoadedFields fields;
  fields.secol = std::make_unique<SEColl>(app, document.shared());
  try {
    file.message =
        fields.secol->strLoadParsed(fields.domDoc, parsed, fields.domSchema, rules.className);
  } catch (const RunTimeError& error) {
    // It is due when an object is made of the file, if that ever happens.
    file.error = error;
    return;
  }
  if (!file.message.empty()) return;
  noteRelations(*fields.secol, rules, file);
  fields.print = parsed.print();
  file.fields = std::move(fields);
}

// The picture of the key frame that a file names.
std::string keyFrameOf(const XmlDocument& parsed) {
  const XmlNode root = parsed.documentElement();
  if (root.baseName() != classNameOf(ObjectKind::Video)) return {};
  for (XmlNode node = root.firstElement(); node; node = node.nextElement()) {
    if (node.baseName() != kKeyFrameField) continue;
    const std::string path = node.text();
    return path.empty() ? path : strAbsolutePath(path);
  }
  return {};
}

// What a loaded object tells of its file.
ScannedFile answerOf(const RegisteredObject& loaded, std::string name) {
  ScannedFile file;
  file.name = std::move(name);
  file.kind = loaded.kind();
  const auto* described = as<const DescribedObject>(&loaded);
  if (described) noteRelations(described->secol(), rulesOf(described->kind()), file);
  return file;
}

ScannedFile contentOf(ApplicationModule& app, OpenDocument& document, const ParsedAhead::File& read,
                      std::string name) {
  ScannedFile file;
  file.name = std::move(name);
  file.stamp = read.stamp;
  if (read.parsed) {
    file.kind = kindOfRoot(read.document.documentElement().baseName());
    if (file.kind) readFields(app, document, read.document, rulesOf(*file.kind), file);
  } else {
    file.reason = read.document.reason();
  }
  return file;
}

}  // namespace

void FolderScan::refresh(ApplicationModule& app, OpenDocument& document, PictureStamps* pictures) {
  std::vector<ScannedFile> before = std::exchange(files_, {});
  FolderListing listing = listFiles(folder_ + "*.xml");
  reason_ = std::move(listing.reason);
  for (std::string& name : listing.names) {
    ScannedFile file;
    file.name = std::move(name);
    files_.push_back(std::move(file));
  }
  takeOver(before);
  readAll(app, document, pictures);
  index();
}

void FolderScan::readAll(ApplicationModule& app, OpenDocument& document, PictureStamps* pictures) {
  std::vector<ParsedAhead::Wanted> wanted;
  std::vector<ScannedFile*> waiting;
  for (ScannedFile& file : files_) {
    std::string path = folder_ + file.name;
    if (const RegisteredRef loaded = document.loadedObject(path)) {
      file = answerOf(*loaded, std::move(file.name));
    } else {
      wanted.push_back({std::move(path), file.stamp});
      waiting.push_back(&file);
    }
  }
  ParsedAhead::Calls calls;
  if (pictures) calls.pictureOf = keyFrameOf;
  if (app.gMainForm) calls.waits = [&app] { app.gMainForm->workWaits(); };
  ParsedAhead ahead(std::move(wanted), std::move(calls));
  for (ScannedFile* file : waiting) {
    const ParsedAhead::File& read = ahead.take();
    if (read.known) continue;
    if (app.gMainForm) app.gMainForm->workSteps();
    if (read.picture) pictures->insert_or_assign(read.picture->path, read.picture->stamp);
    *file = contentOf(app, document, read, std::move(file->name));
  }
}

void FolderScan::takeOver(std::vector<ScannedFile>& before) {
  std::unordered_map<std::string_view, ScannedFile*> known;
  for (ScannedFile& file : before) known.emplace(file.name, &file);
  for (ScannedFile& file : files_) {
    const auto at = known.find(file.name);
    if (at != known.end()) file = std::move(*at->second);
  }
}

void FolderScan::index() {
  byName_.clear();
  byRelation_.clear();
  unreadable_.clear();
  for (std::size_t i = 0; i < files_.size(); ++i) {
    const ScannedFile& file = files_[i];
    byName_.emplace(file.name, i);
    if (!file.readable()) unreadable_.push_back(i);
    if (!file.kind) continue;
    for (const std::string& path : file.ownRelatives) {
      byRelation_[relationKey(Relation::Own, *file.kind, path)].push_back(i);
    }
    if (!file.partOf.empty()) {
      byRelation_[relationKey(Relation::PartOf, *file.kind, file.partOf)].push_back(i);
    }
  }
}

std::vector<std::size_t> FolderScan::relevant(Relation relation,
                                              const std::vector<ObjectKind>& kinds,
                                              const std::string& guid) const {
  std::vector<std::size_t> offsets = unreadable_;
  const std::string path = strAbsolutePath(guid);
  for (const ObjectKind kind : kinds) {
    const auto found = byRelation_.find(relationKey(relation, kind, path));
    if (found == byRelation_.end()) continue;
    offsets.insert(offsets.end(), found->second.begin(), found->second.end());
  }
  std::sort(offsets.begin(), offsets.end());
  offsets.erase(std::unique(offsets.begin(), offsets.end()), offsets.end());
  return offsets;
}

std::optional<LoadedFields> FolderScan::takeFields(const std::string& name, ObjectKind kind) {
  const auto at = byName_.find(name);
  if (at == byName_.end()) return std::nullopt;
  ScannedFile& file = files_[at->second];
  if (file.kind != kind || !file.fields) return std::nullopt;
  file.stamp = {};  // its object answers from now on; without one it is read again
  return std::exchange(file.fields, std::nullopt);
}

std::vector<std::string> FolderScan::relativesOfRest() const {
  std::vector<std::string> paths;
  for (const ScannedFile& file : files_) {
    if (!file.fields) continue;
    paths.insert(paths.end(), file.ownRelatives.begin(), file.ownRelatives.end());
    if (!file.partOf.empty()) paths.push_back(file.partOf);
  }
  return paths;
}

void FolderScan::endOpening() {
  // What a loaded object answers need not be kept beside it.
  std::erase_if(files_, [](const ScannedFile& file) { return !file.stamp.exists; });
  files_.shrink_to_fit();
  for (ScannedFile& file : files_) file.fields.reset();
  index();
  byRelation_.clear();
}

bool FolderScan::checkConsistency() const {
  if (byName_.size() != files_.size()) return false;
  for (std::size_t i = 0; i < files_.size(); ++i) {
    const ScannedFile& file = files_[i];
    const auto named = byName_.find(file.name);
    if (named == byName_.end() || named->second != i) return false;
    const bool reported = std::binary_search(unreadable_.begin(), unreadable_.end(), i);
    if (reported == file.readable()) return false;
    if (byRelation_.empty() || file.partOf.empty() || !file.kind) continue;
    const auto found = relevant(Relation::PartOf, {*file.kind}, file.partOf);
    if (!std::binary_search(found.begin(), found.end(), i)) return false;
  }
  return true;
}

}  // namespace velra
