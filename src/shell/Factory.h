// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "forms/AVDocSchemaDialog.h"
#include "protocol/ObjectFactory.h"

namespace velra {

class ApplicationModule;
class FormPresenter;

/// Makes the objects and forms of the program by the names of their classes. One for the program's
/// life; it makes itself known to the application module.
class Factory : public ObjectFactory {
 public:
  using MakeForm = std::function<std::shared_ptr<ObjectForm>()>;

  /// `makeVideoForm` makes the form of an expression of any class.
  Factory(ApplicationModule& app, FormPresenter& presenter, MakeForm makeVideoForm);
  ~Factory() override;
  Factory(const Factory&) = delete;
  Factory& operator=(const Factory&) = delete;

  ObjectRef createObject(ObjectKind kind) override;
  ExpressionRef createExpression(ObjectKind kind) override;
  std::shared_ptr<ObjectForm> createForm(ObjectKind kind) override;
  void showSchemaDialog(FormOwner& owner, SEColl& secol) override;

 private:
  ApplicationModule& app_;
  FormPresenter& presenter_;
  MakeForm makeVideoForm_;
  AVDocSchemaDialog schemaDialog_;
};

}  // namespace velra
