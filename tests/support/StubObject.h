// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "base/RunTimeError.h"
#include "protocol/DescribedObject.h"

namespace velra::test {

/// An object with an identifier, a flag and those that it waits for, and no fields or file. What
/// tests need besides, they derive from it.
class StubObject : public virtual DescribedObject {
 public:
  explicit StubObject(std::string guid = {}) : guid_(std::move(guid)) {}

  ObjectKind isA = ObjectKind::Version;
  bool changed = false;
  bool canSave = true;
  ObjectList waits;
  ObjectList below;

  ObjectKind kind() const override { return isA; }
  std::shared_ptr<IOManager> io() const override { return nullptr; }
  SEColl& secol() const override { raise(kNoObject); }
  std::string strGUID() const override { return guid_; }
  void setStrGUID(const std::string& guid) override {
    guid_ = guid;
    if (listener_) listener_->identifierChanged(*this);
  }
  void tellReferences() const {
    if (listener_) listener_->referencesAdded(*this);
  }
  /// Changes the identifier behind the listener's back, as no object may.
  void setSecretly(const std::string& guid) { guid_ = guid; }
  std::string strTitle() const override { return guid_; }
  void setStrTitle(const std::string&) override {}
  void setStrSchemaPath(const std::string&) override {}
  bool bChanged() const override { return changed; }
  void ShowForm(FormOwner&) override {}
  void EditAttributesForm(FormOwner&) override {}
  std::string strLoadXML(const std::string&, const std::shared_ptr<ObjectForm>&,
                         const std::shared_ptr<IOManager>&) override {
    return {};
  }
  std::string strOpen(const std::string&, const std::shared_ptr<ObjectForm>&,
                      const std::shared_ptr<IOManager>&) override {
    return {};
  }
  std::string strInitAsNew(const std::string&, const std::string&, const std::string&,
                           const std::string&, const std::shared_ptr<ObjectForm>&,
                           const std::shared_ptr<IOManager>&) override {
    return {};
  }
  bool bSave() override {
    if (canSave) changed = false;
    return canSave;
  }
  ObjectList waitsFor() const override { return waits; }
  void visitReferences(ReferenceVisitor& visitor) const override {
    for (const ObjectRef& other : below) visitor.object(*other);
  }
  void setObjectListener(ObjectListener* listener) override { listener_ = listener; }
  void documentCloses() override {}
  const ObjectList& colChilds() const override { return below; }

 private:
  std::string guid_;
  ObjectListener* listener_ = nullptr;
};

}  // namespace velra::test
