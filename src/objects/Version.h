// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "objects/LadderObject.h"
#include "protocol/Expression.h"

namespace velra {

class AVDocument;

/// One expression of the document: its Media, its main expressions, and the duration that they all
/// refer to.
class Version : public LadderObject {
 public:
  static constexpr bool isKind(ObjectKind kind) { return kind == ObjectKind::Version; }

  explicit Version(ApplicationModule& app);
  ~Version() override;
  Version(const Version&) = delete;
  Version& operator=(const Version&) = delete;

  std::shared_ptr<AVDocument> objParent() const { return objParent_.lock(); }
  void setObjParent(const std::shared_ptr<AVDocument>& parent) { objParent_ = parent; }

  const ExpressionRef& vdMainVideo() const { return vdMainVideo_; }
  const ExpressionRef& auMainAudio() const { return auMainAudio_; }
  const ExpressionRef& trMainTranscript() const { return trMainTranscript_; }

  /// Seconds; 0 when it is not assigned.
  double dDuration() const;
  void setDDuration(double seconds);
  /// Sets the duration to 0 when no Media has a Storage any more.
  void ResetDuration();
  /// True when any Media has a Storage.
  bool bCheckForSorages() const;

  /// Finds the main expressions in the data folder and opens them.
  void OpenExpressions();

  /// Makes a main expression of a kind with a title and a span in seconds. One of the kind that was
  /// there is replaced. A failure is shown.
  void AddMainExpression(const std::string& title, ObjectKind ofKind, double dStart, double dEnd);

  /// The movie to play: that of the selected Storage, else of the first that names one; "" without.
  std::string strGetMediaObjectPath() const;

  void visitReferences(ReferenceVisitor& visitor) const override;
  void RemoveReferenceObj(DescribedObject& removed) override;

 protected:
  void openBelow() override;
  void adopt(DescribedObject& child) override;
  void appendSubTrees(ObjectList& subTree) override;

 private:
  /// The field for a main expression of a kind; null for what is no expression.
  ExpressionRef* mainExpression(ObjectKind ofKind);

  std::weak_ptr<AVDocument> objParent_;
  ExpressionRef vdMainVideo_;
  ExpressionRef auMainAudio_;
  ExpressionRef trMainTranscript_;
};

}  // namespace velra
