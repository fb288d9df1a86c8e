// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "protocol/DescribedObject.h"
#include "values/Chunk.h"

namespace velra {

class Expression;
using ExpressionRef = std::shared_ptr<Expression>;
using ExpressionList = std::vector<ExpressionRef>;

/// A Video, an Audio or a Transcript: a main expression of a Version, or a time segment of another
/// expression of its class. Times are seconds from the start of the movie.
class Expression : public virtual DescribedObject {
 public:
  static constexpr bool isKind(ObjectKind kind) { return isExpression(kind); }

  /// The parent expression; null for a main expression.
  virtual ExpressionRef objMainExpr() const = 0;
  virtual void setObjMainExpr(const ExpressionRef& parent) = 0;
  /// The next sibling in time; null at the end of the chain.
  virtual ExpressionRef objFollowedBy() const = 0;
  virtual void setObjFollowedBy(const ExpressionRef& next) = 0;
  /// The Version to which the whole tree belongs.
  virtual ObjectRef verVersion() const = 0;
  virtual void setVerVersion(const ObjectRef& version) = 0;

  /// The segments below it, in the order of opening or adding, not of time.
  virtual const ExpressionList& colSubExpressions() const = 0;

  /// Makes a segment and links it into the chain by its times, without any test of overlap. A
  /// failure is shown and leaves the tree as it was.
  virtual void AddSubExpression(const std::string& title, double dStart, double dend) = 0;
  /// By its position from 1 in the list; kSubscriptOutOfRange.
  void RemoveSubExpressionByIndex(std::size_t position);
  virtual void RemoveSubExpressionByPointer(const ExpressionRef& segment) = 0;

  virtual std::string strVersionGUID() const = 0;
  virtual void setStrVersionGUID(const std::string& guid) = 0;
  virtual std::string strGetPartOf() const = 0;
  virtual std::string strFollowedBy() const = 0;
  virtual bool bCheckIfSubExpression(ObjectKind ofKind, const std::string& guid) const = 0;

  /// The span; null when it is not assigned. A change of the chunk itself marks nothing.
  virtual std::shared_ptr<Chunk> ckGetChunk() const = 0;
  virtual void SetChunk(double dStart, double dend) = 0;

  /// The path of the movie; "" when there is none.
  virtual std::string strGetMediaObjectPath() const = 0;

  virtual void OpenTranscript() = 0;
  virtual bool bHasTranscript() const = 0;
  /// The transcript that runs along with this expression, after OpenTranscript.
  virtual ExpressionRef objTranscript() const = 0;
};

}  // namespace velra
