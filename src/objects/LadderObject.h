// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "objects/ObjectBase.h"

namespace velra {

/// What the document, its Versions and their Media share: one relation field that lists the
/// identifiers of the children, and the children themselves.
class LadderObject : public ObjectBase {
 public:
  static bool isKind(ObjectKind kind) { return rulesOf(kind).childKind.has_value(); }

  const ObjectList& colChilds() const override { return colChilds_; }

  /// Reads the children that the relation field lists. What cannot be read is reported and skipped.
  void OpenChilds();

  /// Makes a new child with a title. A failure is shown and leaves all as it was.
  void AddChild(const std::string& title);

  ObjectList waitsFor() const override { return colChilds_; }
  void visitReferences(ReferenceVisitor& visitor) const override;
  void RenameAllRelativesGUID(const std::string& oldGUID, const std::string& newGUID) override;
  void RemoveReferenceObj(DescribedObject& removed) override;
  ObjectList colSelSubTree() override;
  std::string strRemoveAllChilds() override;
  bool bCheckIfOwnRelative(ObjectKind ofKind, const std::string& guid) const override;

 protected:
  LadderObject(ApplicationModule& app, ObjectKind kind);
  ~LadderObject() override;
  LadderObject(const LadderObject&) = delete;
  LadderObject& operator=(const LadderObject&) = delete;

  void openBelow() override { OpenChilds(); }

  /// Reads one child that is not loaded yet; a Media reads its Storages alone.
  virtual std::string openChild(const ObjectRef& child, const std::string& guid,
                                const std::shared_ptr<ObjectForm>& form);
  /// Gives a child its way up; kTypeMismatch for a child of another class.
  virtual void adopt(DescribedObject& child) = 0;
  /// Puts a child that was opened behind the others.
  virtual void attach(const ObjectRef& child);
  /// What a Version has besides its children.
  virtual void appendSubTrees(ObjectList&) {}

  void addReference(const std::string& guid);
  void removeReference(const std::string& guid);

 private:
  const StringList* relation() const;
  /// The relation field if it holds the identifier, and where.
  SchemaElement* fieldHolding(const std::string& guid, std::size_t& offset);
  ObjectKind childKind() const { return rules().childKind.value(); }
  ObjectRef childOf(const std::string& guid);

  ObjectList colChilds_;
};

}  // namespace velra
