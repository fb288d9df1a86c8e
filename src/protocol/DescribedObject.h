// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "protocol/ObjectKind.h"

namespace velra {

class FormOwner;
class IOManager;
class ObjectForm;
class SEColl;
class SchemaElement;

class DescribedObject;
using ObjectRef = std::shared_ptr<DescribedObject>;
using ObjectList = std::vector<ObjectRef>;

/// Told of what may have changed in an object; the registry of the document keeps its indexes true
/// so. It stands above this folder: this is the wall between the two.
class ObjectListener {
 public:
  virtual ~ObjectListener() = default;
  virtual void identifierChanged(const DescribedObject& object) = 0;
  /// It may refer to more than before, by an identifier in its fields or an object below or beside
  /// it. That it refers to less need not be told.
  virtual void referencesAdded(const DescribedObject&) {}
  /// It has something to save.
  virtual void markedChanged(const DescribedObject&) {}
};

/// Takes the references that an object holds.
class ReferenceVisitor {
 public:
  virtual ~ReferenceVisitor() = default;
  /// An identifier in one of its fields.
  virtual void identifier(const std::string& guid) = 0;
  /// An object that it holds below or beside itself.
  virtual void object(const DescribedObject& object) = 0;
};

/// What all described objects share. Classes are told apart by `kind`. A `MediaObject` takes
/// part for a file that is no object file; members that it does not have answer with nothing.
class DescribedObject : public std::enable_shared_from_this<DescribedObject> {
 public:
  DescribedObject() = default;
  DescribedObject(const DescribedObject&) = delete;
  DescribedObject& operator=(const DescribedObject&) = delete;
  virtual ~DescribedObject() = default;

  virtual ObjectKind kind() const = 0;
  const std::string& className() const { return classNameOf(kind()); }

  virtual std::shared_ptr<IOManager> io() const = 0;

  /// The fields; kNoObject before the object is loaded, and always on a MediaObject.
  virtual SEColl& secol() const = 0;

  virtual std::string strGUID() const = 0;
  virtual void setStrGUID(const std::string& guid) = 0;
  virtual std::string strTitle() const = 0;
  virtual void setStrTitle(const std::string& title) = 0;

  /// Sets the identifier without marking the object as changed.
  virtual void strInitGUID(const std::string& guid) = 0;

  virtual void setStrSchemaPath(const std::string& path) = 0;
  virtual bool bChanged() const = 0;
  virtual std::int16_t iNumValidElem() const = 0;

  /// Shows the object's form over the owner.
  virtual void ShowForm(FormOwner& owner) = 0;
  /// Unloads the form and opens the dialog of assigned fields over the owner.
  virtual void EditAttributesForm(FormOwner& owner) = 0;

  /// Reads this object alone; reads it and all below it; makes it new in memory. A message, or "".
  virtual std::string strLoadXML(const std::string& guid, const std::shared_ptr<ObjectForm>& form,
                                 const std::shared_ptr<IOManager>& io) = 0;
  virtual std::string strOpen(const std::string& guid, const std::shared_ptr<ObjectForm>& form,
                              const std::shared_ptr<IOManager>& io) = 0;
  virtual std::string strInitAsNew(const std::string& guid, const std::string& schemaPath,
                                   const std::string& prefix, const std::string& title,
                                   const std::shared_ptr<ObjectForm>& form,
                                   const std::shared_ptr<IOManager>& io) = 0;

  virtual bool bSave() = 0;

  /// Rewrites this object's references to another object.
  virtual void RenameAllRelativesGUID(const std::string& oldGUID, const std::string& newGUID) = 0;
  /// Forgets another object.
  virtual void RemoveReferenceObj(DescribedObject& removed) = 0;
  /// True when this object must wait in an ordered save: one of those that it waits for has
  /// changed.
  virtual bool bReferedStillToBeSaved() const = 0;
  virtual ObjectList waitsFor() const = 0;

  /// All that RenameAllRelativesGUID and RemoveReferenceObj would look at.
  virtual void visitReferences(ReferenceVisitor& visitor) const = 0;

  /// Null ends the listening.
  virtual void setObjectListener(ObjectListener* listener) = 0;

  /// This object and everything below it, children first. Empty when the object cannot list what is
  /// below it; else the object itself is the last.
  virtual ObjectList colSelSubTree() = 0;
  /// Removes what is below this object. A message, or "".
  virtual std::string strRemoveAllChilds() = 0;

  /// Does this object point at the given object of the given kind?
  virtual bool bCheckIfOwnRelative(ObjectKind ofKind, const std::string& guid) const = 0;

  /// The objects below it in the left tree, in order.
  virtual const ObjectList& colChilds() const = 0;
};

}  // namespace velra
