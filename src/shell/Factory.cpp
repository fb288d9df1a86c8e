// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Factory.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "expressions/Audio.h"
#include "expressions/Transcript.h"
#include "expressions/Video.h"
#include "forms/MetadataForm.h"
#include "forms/MetadataKinds.h"
#include "objects/AVDocument.h"
#include "objects/Media.h"
#include "objects/Storage.h"
#include "objects/Version.h"

namespace velra {

Factory::Factory(ApplicationModule& app, FormPresenter& presenter, MakeForm makeVideoForm)
    : app_(app),
      presenter_(presenter),
      makeVideoForm_(std::move(makeVideoForm)),
      schemaDialog_(app, presenter) {
  app_.objectFactory = this;
}

Factory::~Factory() {
  if (app_.objectFactory == this) app_.objectFactory = nullptr;
}

ObjectRef Factory::createObject(ObjectKind kind) {
  if (kind == ObjectKind::AVDocument) return std::make_shared<AVDocument>(app_);
  if (kind == ObjectKind::Version) return std::make_shared<Version>(app_);
  if (kind == ObjectKind::Media) return std::make_shared<Media>(app_);
  if (kind == ObjectKind::Storage) return std::make_shared<Storage>(app_);
  return createExpression(kind);
}

ExpressionRef Factory::createExpression(ObjectKind kind) {
  if (kind == ObjectKind::Video) return std::make_shared<Video>(app_);
  if (kind == ObjectKind::Audio) return std::make_shared<Audio>(app_);
  if (kind == ObjectKind::Transcript) return std::make_shared<Transcript>(app_);
  return nullptr;
}

std::shared_ptr<ObjectForm> Factory::createForm(ObjectKind kind) {
  if (isExpression(kind)) return makeVideoForm_();
  const MetadataKind* form = metadataKindOf(kind);
  if (!form) return nullptr;
  return std::make_shared<MetadataForm>(*form, app_, presenter_);
}

void Factory::showSchemaDialog(FormOwner& owner, SEColl& secol) {
  schemaDialog_.ShowDialog(owner, secol);
}

}  // namespace velra
