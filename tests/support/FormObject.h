// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "schema/CloseList.h"
#include "schema/SEColl.h"
#include "schema/SchemaFile.h"
#include "support/RecordingMainWindow.h"
#include "support/StubObject.h"
#include "support/TestApplication.h"

namespace velra::test {

/// An object of a kind with whatever fields a test gives it; nothing else works.
class FormObject : public StubObject {
 public:
  FormObject(ApplicationModule& app, ObjectKind edited, std::string titleField = {})
      : shared(app), titleField_(std::move(titleField)), secol_(app, shared) {
    isA = edited;
  }

  SharedParts shared;

  /// An assigned, unchanged field.
  SchemaElement& add(tyType type, const std::string& name, Value content,
                     const std::string& closeList = {}) {
    return secol_.Add(type, closeList, name, std::move(content), "About " + name, false, false,
                      false, true);
  }

  SEColl& secol() const override { return secol_; }
  std::string strTitle() const override {
    const SchemaElement* title = secol_.field(titleField_);
    return title ? toText(title->vContent()) : std::string();
  }
  bool bChanged() const override { return secol_.bChanged(); }

 private:
  std::string titleField_;
  mutable SEColl secol_;
};

/// Text fields "Field1", "Field2"... of a class.
inline std::shared_ptr<FormObject> objectOfTexts(ApplicationModule& app, int fields,
                                                 ObjectKind edited = ObjectKind::Media) {
  auto object = std::make_shared<FormObject>(app, edited, "Field1");
  for (int i = 1; i <= fields; ++i) {
    object->add(tyType::String, "Field" + std::to_string(i), "text " + std::to_string(i));
  }
  return object;
}

}  // namespace velra::test
