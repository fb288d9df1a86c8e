// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/ScannedFile.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "platform/xml/XmlDocument.h"
#include "protocol/ClassRules.h"
#include "protocol/MainWindow.h"
#include "protocol/OpenDocument.h"
#include "schema/SchemaFile.h"

namespace velra {

namespace {

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
  fields.stamp = file.stamp;
  file.fields = std::move(fields);
}

// The absolute path of the picture of the key frame that a file names; "" for none.
std::string keyFrameNamedBy(const XmlDocument& parsed) {
  const XmlNode root = parsed.documentElement();
  if (root.baseName() != classNameOf(ObjectKind::Video)) return {};
  for (XmlNode node = root.firstElement(); node; node = node.nextElement()) {
    if (node.baseName() != kKeyFrameField) continue;
    const std::string path(node.text());
    return path.empty() ? path : strAbsolutePath(path);
  }
  return {};
}

ScannedFile contentOf(ApplicationModule& app, OpenDocument& document,
                      const ParsedAhead::File& read) {
  ScannedFile file;
  file.stamp = read.stamp;
  file.otherNames = read.otherNames;
  if (read.parsed) {
    file.kind = kindOfRoot(read.document.documentElement().baseName());
    if (file.kind) readFields(app, document, read.document, rulesOf(*file.kind), file);
  } else {
    file.reason = read.document.reason();
  }
  return file;
}

}  // namespace

bool ScannedFile::pointsAt(Relation relation, const std::string& path) const {
  if (relation == Relation::PartOf) return partOf == path;
  return std::find(ownRelatives.begin(), ownRelatives.end(), path) != ownRelatives.end();
}

std::uint64_t relationKey(Relation relation, ObjectKind kind, std::string_view path) {
  constexpr std::size_t kKinds = 16;
  const auto which = 2 * static_cast<std::size_t>(kind) + static_cast<std::size_t>(relation);
  return std::hash<std::string_view>{}(path) * (2 * kKinds) + which;
}

void forEachRelation(const ScannedFile& file, const std::function<void(std::uint64_t)>& call) {
  if (!file.kind) return;
  for (const std::string& path : file.ownRelatives) {
    call(relationKey(Relation::Own, *file.kind, path));
  }
  if (!file.partOf.empty()) call(relationKey(Relation::PartOf, *file.kind, file.partOf));
}

ScannedFile answerOf(const RegisteredObject& loaded) {
  ScannedFile file;
  file.kind = loaded.kind();
  const auto* described = as<const DescribedObject>(&loaded);
  if (described) noteRelations(described->secol(), rulesOf(described->kind()), file);
  return file;
}

void readScanned(ApplicationModule& app, OpenDocument& document,
                 std::vector<ParsedAhead::Wanted> files, PictureStamps* pictures,
                 const std::function<void(std::size_t, ScannedFile)>& came) {
  ParsedAhead::Calls calls;
  if (pictures) calls.pictureOf = keyFrameNamedBy;
  if (app.gMainForm) calls.waits = [&app] { app.gMainForm->workWaits(); };
  const std::size_t count = files.size();
  ParsedAhead ahead(std::move(files), std::move(calls));
  for (std::size_t place = 0; place < count; ++place) {
    const ParsedAhead::File& read = ahead.take();
    if (read.known) continue;
    if (app.gMainForm) app.gMainForm->workSteps();
    if (read.picture) pictures->insert_or_assign(read.picture->path, read.picture->stamp);
    came(place, contentOf(app, document, read));
  }
}

}  // namespace velra
