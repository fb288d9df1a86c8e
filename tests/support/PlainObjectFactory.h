// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "expressions/Audio.h"
#include "expressions/Transcript.h"
#include "expressions/Video.h"
#include "objects/AVDocument.h"
#include "objects/Media.h"
#include "objects/Storage.h"
#include "objects/Version.h"
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

  ObjectRef createObject(ObjectKind kind) override {
    if (ExpressionRef expression = createExpression(kind)) return expression;
    if (kind == ObjectKind::AVDocument) return noted(std::make_shared<AVDocument>(app_));
    if (kind == ObjectKind::Version) return noted(std::make_shared<Version>(app_));
    if (kind == ObjectKind::Media) return noted(std::make_shared<Media>(app_));
    if (kind == ObjectKind::Storage) return noted(std::make_shared<Storage>(app_));
    return nullptr;
  }
  ExpressionRef createExpression(ObjectKind kind) override {
    if (kind == ObjectKind::Video) return noted(std::make_shared<Video>(app_));
    if (kind == ObjectKind::Audio) return noted(std::make_shared<Audio>(app_));
    if (kind == ObjectKind::Transcript) return noted(std::make_shared<Transcript>(app_));
    return nullptr;
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
    objects.push_back(object);
    return object;
  }

  ApplicationModule& app_;
};

}  // namespace velra::test
