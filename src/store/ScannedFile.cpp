// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/ScannedFile.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "platform/xml/XmlDocument.h"
#include "protocol/ClassRules.h"
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
  file.fields = std::move(fields);
}

}  // namespace

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

}  // namespace velra
