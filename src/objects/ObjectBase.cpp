// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/ObjectBase.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "platform/UserInterface.h"
#include "protocol/MainWindow.h"
#include "protocol/ObjectFactory.h"
#include "protocol/OpenDocument.h"
#include "schema/SEColl.h"
#include "schema/SchemaFile.h"
#include "store/IOManager.h"
#include "store/ObjectRegistry.h"

namespace velra {

ObjectBase::ObjectBase(ApplicationModule& app, ObjectKind kind)
    : app_(app), rules_(rulesOf(kind)) {}

ObjectBase::~ObjectBase() = default;

SEColl& ObjectBase::secol() const {
  if (!secol_) raise(kNoObject);
  return *secol_;
}

std::uint64_t ObjectBase::stateNumber() const {
  return secol_ ? secol_->stateNumber() : 0;
}

std::string ObjectBase::strGUID() const {
  return secol_ ? secol_->assignedText(rules_.identityField) : std::string();
}

std::string ObjectBase::strTitle() const {
  return secol_ ? secol_->assignedText(rules_.titleField) : std::string();
}

void ObjectBase::setStrGUID(const std::string& guid) {
  setTextField(rules_.identityField, guid);
}

void ObjectBase::setStrTitle(const std::string& title) {
  setTextField(rules_.titleField, title);
}

void ObjectBase::setTextField(const std::string& name, const std::string& text) {
  SchemaElement* field = secol().field(name);
  if (!field || toText(field->vContent()) == text) return;
  field->assign(text);
}

void ObjectBase::strInitGUID(const std::string& guid) {
  SchemaElement* field = secol().field(rules_.identityField);
  if (!field) return;
  // What the file says is nearly always the same and stays where it is.
  if (field->vContent().text() != guid) field->setVContent(guid);
  field->setBChanged(false);
  field->setBValid(true);
}

bool ObjectBase::bChanged() const {
  return secol_ && secol_->bChanged();
}

void ObjectBase::ShowForm(FormOwner& owner) {
  if (!objForm_) raise(kNoObject);
  const auto kept = shared_from_this();  // the form may remove its object
  const std::shared_ptr<ObjectForm> form = objForm_;
  form->Show(owner);
}

void ObjectBase::EditAttributesForm(FormOwner& owner) {
  if (objForm_) objForm_->Unload();
  app_.objectFactory->showSchemaDialog(owner, secol());
}

std::string ObjectBase::loadFields(const std::string& guid) {
  if (auto loaded = io_->scans().takeFields(guid, rules_.kind)) {
    secol_ = std::move(loaded->secol);
    domDoc_ = std::move(loaded->domDoc);
    domSchema_ = std::move(loaded->domSchema);
    io_->guard().noteContent(strAbsolutePath(guid), loaded->print, loaded->stamp);
    return {};
  }
  if (app_.gMainForm) app_.gMainForm->workSteps();
  auto fields = std::make_unique<SEColl>(app_, document().shared());
  std::string message = fields->strLoad(domDoc_, guid, domSchema_, *io_, rules_.className);
  if (message.empty()) secol_ = std::move(fields);
  return message;
}

std::string ObjectBase::strLoadXML(const std::string& guid, const std::shared_ptr<ObjectForm>& form,
                                   const std::shared_ptr<IOManager>& io) {
  io_ = io;
  try {
    std::string message = loadFields(guid);
    if (!message.empty()) return message;
    if (io_->bFileSystem()) strInitGUID(guid);
    bindForm(form);
    registerSelf();
    afterLoad();
    if (app_.gMainForm) app_.gMainForm->workSteps();
  } catch (const RunTimeError& error) {
    throw error.inFile(guid);
  }
  return {};
}

std::string ObjectBase::strOpen(const std::string& guid, const std::shared_ptr<ObjectForm>& form,
                                const std::shared_ptr<IOManager>& io) {
  std::string message = strLoadXML(guid, form, io);
  if (!message.empty()) {
    io->noteLeftOut(guid, message);
    return message;
  }
  if (app_.gMainForm) {
    app_.gMainForm->setStrStatusBarText(app_.LoadResString(Message::OpeningObject) + " " +
                                        std::to_string(document().collObjects().Count()) + " (" +
                                        strTitle() + ")");
  }
  try {
    openBelow();
  } catch (const RunTimeError& error) {
    throw error.inFile(guid);
  }
  return {};
}

std::string ObjectBase::strInitAsNew(const std::string& guid, const std::string& schemaPath,
                                     const std::string& prefix, const std::string& title,
                                     const std::shared_ptr<ObjectForm>& form,
                                     const std::shared_ptr<IOManager>& io) {
  io_ = io;
  secol_ = std::make_unique<SEColl>(app_, document().shared());
  std::string message =
      secol_->strInitAsNew(domDoc_, strGUID(), domSchema_, schemaPath, prefix, rules_.className);
  if (!message.empty()) return message;
  initFields();
  setStrTitle(title);
  bindForm(form);
  registerSelf();
  setStrGUID(guid);
  afterInit();
  return {};
}

void ObjectBase::bindForm(const std::shared_ptr<ObjectForm>& form) {
  objForm_ = form;
  if (objForm_) objForm_->setObject(shared_from_this());
  secol_->watch(this);
}

// The registry keeps identifiers, references and what is to be saved in indexes, so it must hear of
// every write.
void ObjectBase::contentChanged(const SchemaElement& element, ReferenceChange change) {
  fieldChanged(element);
  if (!listener_) return;
  if (element.bChanged()) listener_->markedChanged(*this);
  if (element.strName() == rules_.identityField) listener_->identifierChanged(*this);
  if (change == ReferenceChange::MayAdd && isReference(element)) {
    listener_->referencesAdded(*this);
  }
}

bool ObjectBase::isReference(const SchemaElement& element) const {
  return !rules_.relationField.empty() && element.strLowerName() == rules_.relationField;
}

void ObjectBase::tellReferences() const {
  if (listener_) listener_->referencesAdded(*this);
}

void ObjectBase::registerSelf() {
  if (app_.gAVDoc) app_.gAVDoc->collObjects().Add(shared_from_this());
}

OpenDocument& ObjectBase::document() const {
  if (!app_.gAVDoc) raise(kNoObject);
  return *app_.gAVDoc;
}

// An object that never loaded has nothing to write.
bool ObjectBase::bSave() {
  return !secol_ || secol_->bSave(domDoc_, strGUID(), *io_);
}

std::string ObjectBase::fileBytes() const {
  return secol().fileBytes(domDoc_);
}

bool ObjectBase::canNameChild() const {
  const std::string message = io_->strMakeDataFolder(document().strGUID());
  if (!message.empty()) app_.ui.messageBox(message);
  return message.empty();
}

std::string ObjectBase::schemaPrefix() const {
  return domSchema_ ? domSchema_->rootPrefix() : std::string();
}

}  // namespace velra
