// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "protocol/RegisteredObject.h"

namespace velra {

class FormOwner;
class ObjectForm;
class SEColl;

using ObjectRef = std::shared_ptr<DescribedObject>;
using ObjectList = std::vector<ObjectRef>;

/// Takes the references that an object holds.
class ReferenceVisitor {
 public:
  virtual ~ReferenceVisitor() = default;
  /// An identifier in one of its fields.
  virtual void identifier(const std::string& guid) = 0;
  /// An object that it holds below or beside itself.
  virtual void object(const DescribedObject& object) = 0;
};

/// What a person describes: an object with fields, a file and a form of its own. What is not said
/// of references and of what lies below is that there is none.
class DescribedObject : public RegisteredObject,
                        public std::enable_shared_from_this<DescribedObject> {
 public:
  static constexpr bool isKind(ObjectKind kind) { return kind != ObjectKind::MediaObject; }

  /// The fields; kNoObject before the object is loaded.
  virtual SEColl& secol() const = 0;
  std::int16_t iNumValidElem() const;
  /// Stands for what the fields hold, as `FieldList` gives it: where two are alike, so are title,
  /// identifier and all else that the fields say. 0 while there is none.
  virtual std::uint64_t stateNumber() const { return 0; }

  virtual void setStrTitle(const std::string& title) = 0;
  virtual void setStrSchemaPath(const std::string& path) = 0;

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

  /// Rewrites this object's references to another object.
  virtual void RenameAllRelativesGUID(const std::string&, const std::string&) {}
  /// Forgets another object.
  virtual void RemoveReferenceObj(DescribedObject&) {}
  /// All that these two would look at.
  virtual void visitReferences(ReferenceVisitor&) const {}
  /// Does this object point at the given object of the given kind?
  virtual bool bCheckIfOwnRelative(ObjectKind, const std::string&) const { return false; }

  /// Those that an ordered save writes before this object.
  virtual ObjectList waitsFor() const { return {}; }
  /// True when one of them has changed.
  bool bReferedStillToBeSaved() const;

  /// The objects below it in the left tree, in order.
  virtual const ObjectList& colChilds() const;
  /// This object and everything below it, children first. Empty when the object cannot list what is
  /// below it; else the object itself is the last.
  virtual ObjectList colSelSubTree() { return {shared_from_this()}; }
  /// Removes what is below this object. A message, or "".
  virtual std::string strRemoveAllChilds() { return {}; }
};

/// A reference to an object that shares its life, for members that hand out themselves.
template <class Object>
std::shared_ptr<Object> sharedOf(Object& object) {
  return {object.shared_from_this(), &object};
}

}  // namespace velra
