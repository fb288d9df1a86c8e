// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "protocol/DescribedObject.h"
#include "values/Chunk.h"
#include "values/Picture.h"
#include "values/WordColl.h"

namespace velra {

class Expression;
using ExpressionRef = std::shared_ptr<Expression>;
using ExpressionList = std::vector<ExpressionRef>;

/// A Video, an Audio or a Transcript: a main expression of a Version, or a time segment of another
/// expression of its class. Times are seconds from the start of the movie.
class Expression : public virtual DescribedObject {
 public:
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
  virtual void OpenSubExpressions() = 0;

  /// Makes a segment and links it into the chain by its times, without any test of overlap. A
  /// failure is shown and leaves the tree as it was.
  virtual void AddSubExpression(const std::string& title, double dStart, double dend) = 0;
  virtual void RemoveSubExpressionByIndex(std::size_t position) = 0;
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
  /// The timed words of a Transcript; null when it has none, and for the other classes.
  virtual std::shared_ptr<WordColl> WordList() const = 0;

  /// What a Video alone has. The other classes answer with 0 or an empty picture and ignore writes.
  virtual double dFrameRate() const = 0;
  virtual void setDFrameRate(double framesPerSecond) = 0;
  /// The key-frame picture as an object of the document; null when there is none.
  virtual ObjectRef objKeyframeObject() const = 0;
  virtual Picture picKeyFrame() const = 0;
  virtual Picture picKeyFrameSmall() const = 0;
  virtual double dGetKeyFrameTime() const = 0;
  virtual void SetKeyFrameTime(double seconds) = 0;
  /// Brings the key-frame picture to its new place: a picture that no saved object points at yet is
  /// moved, another one copied.
  virtual void UpdateLocationKeyFrameObject(const std::string& from, const std::string& to) = 0;
};

}  // namespace velra
