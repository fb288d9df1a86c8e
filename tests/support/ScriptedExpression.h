// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "base/RunTimeError.h"
#include "protocol/ObjectForm.h"
#include "protocol/TranscriptExpression.h"
#include "protocol/VideoExpression.h"
#include "schema/SEColl.h"
#include "support/StubObject.h"

namespace velra::test {

/// An expression in memory, of any kind, with fields and a form only where a test gives it some. It
/// links its chain as the real ones do for segments that do not overlap.
class ScriptedExpression : public StubObject, public VideoExpression, public TranscriptExpression {
 public:
  using Expression::isKind;

  explicit ScriptedExpression(ObjectKind kind) { isA = kind; }

  std::string title;
  std::string movie;
  std::shared_ptr<Chunk> span;
  std::shared_ptr<WordColl> words;
  ExpressionRef transcript;  // null: the Version has none
  ExpressionRef follower;
  std::weak_ptr<Expression> parent;
  ExpressionList children;
  double frameRate = 0;
  double keyFrameTime = -1;
  Picture keyFrame;
  Picture keyFrameSmall;
  bool refusesNewSegments = false;  // as when a new object cannot be initialised
  std::shared_ptr<SEColl> fields;
  std::shared_ptr<ObjectForm> form;

  static std::shared_ptr<ScriptedExpression> make(ObjectKind kind, double start, double end) {
    auto made = std::make_shared<ScriptedExpression>(kind);
    made->SetChunk(start, end);
    return made;
  }
  std::shared_ptr<ScriptedExpression> child(std::size_t position) const {
    return as<ScriptedExpression>(children.at(position - 1));
  }

  // Expression.
  ExpressionRef objMainExpr() const override { return parent.lock(); }
  void setObjMainExpr(const ExpressionRef& main) override { parent = main; }
  ExpressionRef objFollowedBy() const override { return follower; }
  void setObjFollowedBy(const ExpressionRef& next) override { follower = next; }
  ObjectRef verVersion() const override { return nullptr; }
  void setVerVersion(const ObjectRef&) override {}
  const ExpressionList& colSubExpressions() const override { return children; }

  void AddSubExpression(const std::string& newTitle, double dStart, double dend) override {
    if (refusesNewSegments) return;
    const auto added = make(isA, dStart, dend);
    added->title = newTitle;
    added->parent = sharedOf(*this);
    if (const ExpressionRef before = nearest(dStart, true)) before->setObjFollowedBy(added);
    added->follower = nearest(dend, false);
    children.push_back(added);
  }
  void RemoveSubExpressionByPointer(const ExpressionRef& segment) override {
    for (const ExpressionRef& other : children) {
      if (other->objFollowedBy() == segment) other->setObjFollowedBy(segment->objFollowedBy());
    }
    std::erase(children, ExpressionRef(segment));
  }
  std::string strVersionGUID() const override { return {}; }
  void setStrVersionGUID(const std::string&) override {}
  std::string strGetPartOf() const override { return {}; }
  std::string strFollowedBy() const override { return {}; }
  bool bCheckIfSubExpression(ObjectKind, const std::string&) const override { return false; }
  std::shared_ptr<Chunk> ckGetChunk() const override { return span; }
  void SetChunk(double dStart, double dend) override {
    span = std::make_shared<Chunk>();
    span->dStart = dStart;
    span->dend = dend;
  }
  std::string strGetMediaObjectPath() const override { return movie; }
  void OpenTranscript() override {}
  bool bHasTranscript() const override { return transcript != nullptr; }
  ExpressionRef objTranscript() const override { return transcript; }
  std::shared_ptr<WordColl> WordList() const override { return words; }
  double dFrameRate() const override { return frameRate; }
  void setDFrameRate(double framesPerSecond) override { frameRate = framesPerSecond; }
  const Picture& picKeyFrame() const override { return keyFrame; }
  const Picture& picKeyFrameSmall() const override { return keyFrameSmall; }
  double dGetKeyFrameTime() const override { return keyFrameTime; }
  void SetKeyFrameTime(double seconds) override { keyFrameTime = seconds; }
  std::shared_ptr<MediaObject> objKeyframeObject() const override { return nullptr; }
  void UpdateLocationKeyFrameObject(const std::string&, const std::string&) override {}

  // DescribedObject.
  SEColl& secol() const override {
    if (!fields) raise(kNoObject);
    return *fields;
  }
  std::string strGUID() const override { return title; }
  std::string strTitle() const override { return title; }
  void setStrTitle(const std::string& text) override { title = text; }
  bool bChanged() const override { return fields && fields->bChanged(); }
  void ShowForm(FormOwner& owner) override { form->Show(owner); }

 private:
  /// The child that ends nearest before a time, or begins nearest after it.
  ExpressionRef nearest(double time, bool before) const {
    ExpressionRef best;
    double distance = INFINITY;
    for (const ExpressionRef& other : children) {
      const auto times = other->ckGetChunk();
      const double gap = before ? time - times->dend : times->dStart - time;
      if (gap < 0 || gap >= distance) continue;
      best = other;
      distance = gap;
    }
    return best;
  }
};

}  // namespace velra::test
