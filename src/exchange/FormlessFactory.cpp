// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/FormlessFactory.h"

#include "app/ApplicationModule.h"
#include "expressions/MakeObject.h"

namespace velra {

FormlessFactory::FormlessFactory(ApplicationModule& app) : app_(app) {
  app_.objectFactory = this;
}

FormlessFactory::~FormlessFactory() {
  if (app_.objectFactory == this) app_.objectFactory = nullptr;
}

ObjectRef FormlessFactory::createObject(ObjectKind kind) {
  return makeObject(app_, kind);
}

ExpressionRef FormlessFactory::createExpression(ObjectKind kind) {
  return makeExpression(app_, kind);
}

std::shared_ptr<ObjectForm> FormlessFactory::createForm(ObjectKind) {
  return nullptr;
}

void FormlessFactory::showSchemaDialog(FormOwner&, SEColl&) {}

}  // namespace velra
