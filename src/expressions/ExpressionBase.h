// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/Message.h"
#include "expressions/ReferenceFields.h"
#include "expressions/SegmentList.h"
#include "objects/ObjectBase.h"
#include "protocol/Expression.h"

namespace velra {

/// What Video, Audio and Transcript share. What is a class's own are the small virtual
/// steps and the names of its fields.
class ExpressionBase : public ObjectBase, public virtual Expression {
 public:
  using Expression::isKind;

  ExpressionRef objMainExpr() const override { return objMainExpr_.lock(); }
  void setObjMainExpr(const ExpressionRef& parent) override { objMainExpr_ = parent; }
  ExpressionRef objFollowedBy() const override { return objFollowedBy_.lock(); }
  void setObjFollowedBy(const ExpressionRef& next) override;
  ObjectRef verVersion() const override { return verVersion_.lock(); }
  void setVerVersion(const ObjectRef& version) override { verVersion_ = version; }

  const ExpressionList& colSubExpressions() const override { return segments_.all(); }
  void OpenSubExpressions();
  void AddSubExpression(const std::string& title, double dStart, double dend) override;
  void RemoveSubExpressionByPointer(const ExpressionRef& segment) override;

  std::string strVersionGUID() const override;
  void setStrVersionGUID(const std::string& guid) override;
  std::string strGetPartOf() const override;
  std::string strFollowedBy() const override;
  bool bCheckIfSubExpression(ObjectKind ofKind, const std::string& guid) const override;
  bool bCheckIfOwnRelative(ObjectKind ofKind, const std::string& guid) const override;

  std::shared_ptr<Chunk> ckGetChunk() const override;
  void SetChunk(double dStart, double dend) override;
  std::string strGetMediaObjectPath() const override;

  void OpenTranscript() override;
  bool bHasTranscript() const override { return objTranscript() != nullptr; }
  ExpressionRef objTranscript() const override { return objTranscript_.lock(); }

  ReferenceFields references() const;
  ObjectList waitsFor() const override;
  void visitReferences(ReferenceVisitor& visitor) const override;
  void RenameAllRelativesGUID(const std::string& oldGUID, const std::string& newGUID) override;
  void RemoveReferenceObj(DescribedObject& removed) override;
  ObjectList colSelSubTree() override;
  std::string strRemoveAllChilds() override;

 protected:
  ExpressionBase(ApplicationModule& app, ObjectKind kind);
  ~ExpressionBase() override = default;
  ExpressionBase(const ExpressionBase&) = delete;
  ExpressionBase& operator=(const ExpressionBase&) = delete;

  void setTextField(const std::string& name, const std::string& text) override;
  void openBelow() override { OpenSubExpressions(); }
  void afterInit() override { segments_.clear(); }
  bool isReference(const SchemaElement& element) const override;

  /// The class's own steps of a new segment: before it joins the tree of its parent, and at the
  /// end.
  virtual void prepareAsSegmentOf(const ExpressionBase&) {}
  virtual void finishAsSegment() {}

  /// A relation field that must be of a type: its text, "" when it is not assigned; a field of
  /// another type shows the message and counts as empty.
  std::string typedText(const std::string& lowerName, Message message) const;

 private:
  std::shared_ptr<ExpressionBase> makeSegment(const std::string& title);
  void forgetExpression(DescribedObject& removed);
  void removeSegment(ExpressionRef segment);  // a copy: the caller's may stand in the list

  SegmentList segments_;
  std::weak_ptr<Expression> objMainExpr_;
  std::weak_ptr<Expression> objFollowedBy_;
  std::weak_ptr<DescribedObject> verVersion_;
  std::weak_ptr<Expression> objTranscript_;
};

}  // namespace velra
