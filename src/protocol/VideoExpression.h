// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "protocol/Expression.h"
#include "values/Picture.h"

namespace velra {

class MediaObject;

/// What a Video has besides: pictures that follow one another, and one of them that stands for it.
class VideoExpression : public virtual Expression {
 public:
  static constexpr bool isKind(ObjectKind kind) { return kind == ObjectKind::Video; }

  /// Frames per second; 0 when it is not assigned.
  virtual double dFrameRate() const = 0;
  virtual void setDFrameRate(double framesPerSecond) = 0;

  /// The key-frame picture as an object of the document; null when there is none.
  virtual std::shared_ptr<MediaObject> objKeyframeObject() const = 0;
  virtual const Picture& picKeyFrame() const = 0;
  virtual const Picture& picKeyFrameSmall() const = 0;
  /// Seconds; -1 when it is not assigned.
  virtual double dGetKeyFrameTime() const = 0;
  virtual void SetKeyFrameTime(double seconds) = 0;
  /// Brings the key-frame picture to its new place: a picture that no saved object points at yet is
  /// moved, another one copied.
  virtual void UpdateLocationKeyFrameObject(const std::string& from, const std::string& to) = 0;
};

}  // namespace velra
