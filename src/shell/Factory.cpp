// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Factory.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "expressions/MakeObject.h"
#include "forms/MetadataForm.h"
#include "forms/MetadataKinds.h"

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
  return makeObject(app_, kind);
}

ExpressionRef Factory::createExpression(ObjectKind kind) {
  return makeExpression(app_, kind);
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
