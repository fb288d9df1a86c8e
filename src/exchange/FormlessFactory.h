// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "protocol/ObjectFactory.h"

namespace velra {

class ApplicationModule;

/// Makes objects that are never shown: they have no forms. One for the life of the application
/// module, to which it makes itself known.
class FormlessFactory : public ObjectFactory {
 public:
  explicit FormlessFactory(ApplicationModule& app);
  ~FormlessFactory() override;
  FormlessFactory(const FormlessFactory&) = delete;
  FormlessFactory& operator=(const FormlessFactory&) = delete;

  ObjectRef createObject(ObjectKind kind) override;
  ExpressionRef createExpression(ObjectKind kind) override;
  /// Null, which objects take for "none".
  std::shared_ptr<ObjectForm> createForm(ObjectKind kind) override;
  void showSchemaDialog(FormOwner& owner, SEColl& secol) override;

 private:
  ApplicationModule& app_;
};

}  // namespace velra
