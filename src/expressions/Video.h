// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "expressions/ExpressionBase.h"
#include "expressions/KeyFrame.h"
#include "protocol/VideoExpression.h"

namespace velra {

class Audio;
class AVDocument;

/// The expression that a movie's pictures carry: frame rate, key frame, and the link to an Audio.
class Video : public ExpressionBase, public VideoExpression {
 public:
  using VideoExpression::isKind;

  explicit Video(ApplicationModule& app);
  ~Video() override;
  Video(const Video&) = delete;
  Video& operator=(const Video&) = delete;

  std::shared_ptr<AVDocument> objParent() const { return objParent_.lock(); }
  void setObjParent(const std::shared_ptr<AVDocument>& parent) { objParent_ = parent; }

  /// The Audio that OpenAudio has opened; null before.
  std::shared_ptr<Audio> objAudio() const { return objAudio_.lock(); }
  bool bHasAudio() const { return objAudio() != nullptr; }
  /// Opens the Audio that the field names. What fails is shown.
  void OpenAudio();

  double dFrameRate() const override;
  void setDFrameRate(double framesPerSecond) override;

  std::shared_ptr<MediaObject> objKeyframeObject() const override {
    return keyFrame_.objKeyframeObject();
  }
  const Picture& picKeyFrame() const override { return keyFrame_.picKeyFrame(); }
  const Picture& picKeyFrameSmall() const override { return keyFrame_.picKeyFrameSmall(); }
  double dGetKeyFrameTime() const override { return keyFrame_.dGetKeyFrameTime(); }
  void SetKeyFrameTime(double seconds) override { keyFrame_.SetKeyFrameTime(seconds); }
  /// Segments that are made of this one, and of these, take their pictures from there while it
  /// lives.
  void expectSegments(const std::shared_ptr<KeyFramesAhead>& ahead) { keyFrame_.setAhead(ahead); }
  void InitKeyFrameFile(KeyFrame::Taking taking) { keyFrame_.InitKeyFrameFile(taking); }
  void CreateKeyFrameIcons() { keyFrame_.CreateKeyFrameIcons(); }
  void UpdateLocationKeyFrameObject(const std::string& from, const std::string& to) override {
    keyFrame_.UpdateLocationKeyFrameObject(from, to);
  }

 protected:
  void afterLoad() override;
  void fieldChanged(const SchemaElement& element) override;
  void openBelow() override;
  void prepareAsSegmentOf(const ExpressionBase& parent) override;
  void finishAsSegment() override;

 private:
  void chooseKeyFrameTime();

  std::weak_ptr<AVDocument> objParent_;
  std::weak_ptr<Audio> objAudio_;  // the registry holds it
  KeyFrame keyFrame_;
};

}  // namespace velra
