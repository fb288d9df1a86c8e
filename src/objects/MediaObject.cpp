// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/MediaObject.h"

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "protocol/OpenDocument.h"
#include "schema/SEColl.h"
#include "store/IOManager.h"
#include "store/ObjectRegistry.h"

namespace velra {

namespace {

std::string pathIn(const SchemaElement& field, bool ownedByVideo) {
  if (!ownedByVideo) return toText(field.vContent());
  const auto chunk = asChunk(field.vContent());
  return chunk ? chunk->strFile : std::string();
}

}  // namespace

std::shared_ptr<MediaObject> MediaObject::create(ApplicationModule& app) {
  auto object = std::make_shared<MediaObject>();
  if (app.gAVDoc) app.gAVDoc->collObjects().Add(object);
  return object;
}

MediaObject::~MediaObject() = default;

void MediaObject::strInit(const ObjectRef& objOwner) {
  io_ = objOwner->io();
  objOwner_ = objOwner;
  ownedByVideo_ = objOwner->kind() == ObjectKind::Video;
  const std::string guid = strGUID();
  if (io_->bFileSystem() && !guid.empty()) strTypeOfObject_ = strExtension(guid);
  if (listener_) listener_->identifierChanged(*this);
}

SchemaElement* MediaObject::ownerField() const {
  const ObjectRef owner = objOwner_.lock();
  if (!owner) return nullptr;
  const char* name = ownedByVideo_ ? kVideoField : kStorageField;
  for (SchemaElement& element : owner->secol()) {
    if (element.bValid() && element.strName() == name) return &element;
  }
  return nullptr;
}

std::string MediaObject::strGUID() const {
  if (objOwner_.expired()) return lastGUID_;
  const SchemaElement* field = ownerField();
  return field ? pathIn(*field, ownedByVideo_) : std::string();
}

void MediaObject::setStrGUID(const std::string& guid) {
  SchemaElement* field = ownerField();
  if (!field || pathIn(*field, ownedByVideo_) == guid) return;
  if (ownedByVideo_) {
    const auto chunk = asChunk(field->vContent());
    if (chunk) chunk->strFile = guid;
  } else {
    field->setVContent(guid);
  }
  field->setBChanged(true);
}

void MediaObject::ownerFieldChanged() {
  if (listener_) listener_->identifierChanged(*this);
}

void MediaObject::setBChanged(bool changed) {
  bChanged_ = changed;
  if (changed && listener_) listener_->markedChanged(*this);
}

bool MediaObject::bSave() {
  bChanged_ = false;
  return true;
}

}  // namespace velra
