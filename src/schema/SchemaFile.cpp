// SPDX-License-Identifier: GPL-3.0-or-later
#include "schema/SchemaFile.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "schema/SchemaReader.h"

namespace velra {

SchemaFile::SchemaFile(const ApplicationModule& app, std::string path)
    : app_(app), path_(std::move(path)), stamp_(fileStamp(path_)) {
  if (!document_.load(path_))
    message_ = app_.LoadResString(Message::SchemaLoadError) + document_.reason();
}

std::string SchemaFile::rootPrefix() const {
  return std::string(document_.documentElement().prefix());
}

const ClassDeclaration& SchemaFile::classDeclaration(const std::string& className,
                                                     CloseLists& lists) const {
  const auto known = classes_.find(className);
  if (known != classes_.end()) return known->second;
  ClassDeclaration declaration;
  if (message_.empty()) {
    const XmlNode root = document_.documentElement();
    declaration = SchemaReader(app_, root, lists).strLoadType(className);
  } else {
    declaration.message = message_;
  }
  return classes_.emplace(className, std::move(declaration)).first->second;
}

DocumentSchemas::Hold::Hold(DocumentSchemas& schemas) : schemas_(schemas) {
  if (schemas_.holds_++ > 0) return;
  schemas_.heldPath_ = schemas_.app_.strXSDPath();
  schemas_.held_ = false;
}

DocumentSchemas::Hold::~Hold() {
  --schemas_.holds_;
}

std::string DocumentSchemas::strXSDPath() const {
  return holds_ > 0 ? heldPath_ : app_.strXSDPath();
}

std::shared_ptr<const SchemaFile> DocumentSchemas::file(const std::string& path) {
  if (path.empty()) return nullptr;
  const bool samePath = file_ && file_->path() == path;
  const bool lookedAt = holds_ > 0 && held_;
  if (samePath && (lookedAt || file_->stamp() == fileStamp(path))) {
    held_ = true;
    return file_;
  }
  file_ = std::make_shared<const SchemaFile>(app_, path);
  held_ = true;
  return file_;
}

}  // namespace velra
