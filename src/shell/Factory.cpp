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
#include "protocol/ClassRules.h"

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

ObjectRef Factory::createObject(const std::string& className) {
  if (className == "AVDocument") return std::make_shared<AVDocument>(app_);
  if (className == "Version") return std::make_shared<Version>(app_);
  if (className == "Media") return std::make_shared<Media>(app_);
  if (className == "Storage") return std::make_shared<Storage>(app_);
  return createExpression(className);
}

ExpressionRef Factory::createExpression(const std::string& className) {
  if (className == "Video") return std::make_shared<Video>(app_);
  if (className == "Audio") return std::make_shared<Audio>(app_);
  if (className == "Transcript") return std::make_shared<Transcript>(app_);
  return nullptr;
}

std::shared_ptr<ObjectForm> Factory::createForm(const std::string& className) {
  if (isExpressionClass(className)) return makeVideoForm_();
  const MetadataKind* kind = metadataKindOf(className);
  if (!kind) return nullptr;
  return std::make_shared<MetadataForm>(*kind, app_, presenter_);
}

void Factory::showSchemaDialog(FormOwner& owner, SEColl& secol) {
  schemaDialog_.ShowDialog(owner, secol);
}

}  // namespace velra
