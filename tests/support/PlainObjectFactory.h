// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "expressions/MakeObject.h"
#include "protocol/ObjectFactory.h"

namespace velra::test {

/// A form that shows nothing.
class PlainForm : public ObjectForm {
 public:
  void setObject(const std::shared_ptr<DescribedObject>&) override {}
  void Show(FormOwner&) override {}
  void Unload() override {}
};

/// Makes the real objects with such forms, and can tell which of them still live.
class PlainObjectFactory : public ObjectFactory {
 public:
  explicit PlainObjectFactory(ApplicationModule& app) : app_(app) {}

  std::vector<std::weak_ptr<DescribedObject>> objects;
  std::vector<std::weak_ptr<PlainForm>> forms;

  ObjectRef createObject(ObjectKind kind) override { return noted(makeObject(app_, kind)); }
  ExpressionRef createExpression(ObjectKind kind) override {
    return noted(makeExpression(app_, kind));
  }
  std::shared_ptr<ObjectForm> createForm(ObjectKind kind) override {
    if (kind == ObjectKind::MediaObject) return nullptr;
    auto form = std::make_shared<PlainForm>();
    forms.push_back(form);
    return form;
  }
  void showSchemaDialog(FormOwner&, SEColl&) override {}

 private:
  template <class Object>
  std::shared_ptr<Object> noted(std::shared_ptr<Object> object) {
    if (object) objects.push_back(object);
    return object;
  }

  ApplicationModule& app_;
};

}  // namespace velra::test
