// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "protocol/ClassRules.h"
#include "protocol/DescribedObject.h"
#include "schema/InstanceDocument.h"
#include "schema/SchemaElement.h"

namespace velra {

class ApplicationModule;
class CloseLists;
class DocumentSchemas;
class OpenDocument;
class SchemaFile;

/// What the seven described classes do alike: their fields, their file and their form. The small
/// virtual steps are what the classes do of their own.
class ObjectBase : public virtual DescribedObject, private ContentWatcher {
 public:
  ~ObjectBase() override;
  ObjectBase(const ObjectBase&) = delete;
  ObjectBase& operator=(const ObjectBase&) = delete;

  ObjectKind kind() const override { return rules_.kind; }
  std::shared_ptr<IOManager> io() const override { return io_; }
  SEColl& secol() const override;
  std::uint64_t stateNumber() const override;

  std::string strGUID() const override;
  void setStrGUID(const std::string& guid) override;
  std::string strTitle() const override;
  void setStrTitle(const std::string& title) override;
  void setStrSchemaPath(const std::string& path) override { domDoc_.setSchemaPath(path); }
  bool bChanged() const override;

  void ShowForm(FormOwner& owner) override;
  void EditAttributesForm(FormOwner& owner) override;

  std::string strLoadXML(const std::string& guid, const std::shared_ptr<ObjectForm>& form,
                         const std::shared_ptr<IOManager>& io) override;
  std::string strOpen(const std::string& guid, const std::shared_ptr<ObjectForm>& form,
                      const std::shared_ptr<IOManager>& io) override;
  std::string strInitAsNew(const std::string& guid, const std::string& schemaPath,
                           const std::string& prefix, const std::string& title,
                           const std::shared_ptr<ObjectForm>& form,
                           const std::shared_ptr<IOManager>& io) override;
  bool bSave() override;
  /// The bytes that bSave would write; kInvalidArgument when it would fail for a value.
  std::string fileBytes() const;
  void setObjectListener(ObjectListener* listener) override { listener_ = listener; }
  void documentCloses() override { io_.reset(); }

 protected:
  ObjectBase(ApplicationModule& app, ObjectKind kind);

  /// Where a text field is set: what happens when the value is there already differs by class.
  virtual void setTextField(const std::string& name, const std::string& text);

  /// The class's own steps: after the fields of a new object stand, after the object is registered
  /// and bound to its form by a load, after a new one has its identifier, and after a load by
  /// `strOpen` has been reported.
  virtual void initFields() {}
  virtual void afterLoad() {}
  virtual void afterInit() {}
  virtual void openBelow() {}

  /// True for a field that holds identifiers of other objects.
  virtual bool isReference(const SchemaElement& element) const;
  /// A field was written; Storage and Video pass on what is about their MediaObject.
  virtual void fieldChanged(const SchemaElement&) {}

  /// To be called when this object holds another one that it did not hold before.
  void tellReferences() const;

  /// The document whose schema and registry this object uses: the open one; kNoObject without one.
  virtual OpenDocument& document() const;
  /// Joins the registry of the open document, if there is one.
  virtual void registerSelf();

  const ClassRules& rules() const { return rules_; }
  ApplicationModule& app() const { return app_; }
  InstanceDocument& domDoc() { return domDoc_; }
  const std::shared_ptr<const SchemaFile>& domSchema() const { return domSchema_; }

  /// True when the folder for a new object below this one is there; else a box has told why not.
  bool canNameChild() const;

  /// The prefix that new objects below this one are made with.
  std::string schemaPrefix() const;

 private:
  std::string loadFields(const std::string& guid);
  /// Sets the identifier without marking the object as changed.
  void strInitGUID(const std::string& guid);
  void bindForm(const std::shared_ptr<ObjectForm>& form);
  void contentChanged(const SchemaElement& element, ReferenceChange change) override;

  ApplicationModule& app_;
  const ClassRules& rules_;
  std::shared_ptr<IOManager> io_;
  std::unique_ptr<SEColl> secol_;
  InstanceDocument domDoc_;
  std::shared_ptr<const SchemaFile> domSchema_;
  std::shared_ptr<ObjectForm> objForm_;
  ObjectListener* listener_ = nullptr;
};

}  // namespace velra
