// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "values/Chunk.h"
#include "values/Picture.h"

namespace velra {

class ApplicationModule;
class IOManager;
class KeyFramesAhead;
class MediaObject;
class Video;

/// The key frame of a video segment: its time and its picture, which is a bitmap beside the object.
class KeyFrame {
 public:
  KeyFrame(ApplicationModule& app, Video& video) : app_(app), video_(video) {}

  const std::shared_ptr<MediaObject>& objKeyframeObject() const { return objKeyframeObject_; }
  const Picture& picKeyFrame() const { return picKeyFrame_; }
  const Picture& picKeyFrameSmall() const { return picKeyFrameSmall_; }

  /// Where the picture may be ready, as long as that lives.
  const std::weak_ptr<KeyFramesAhead>& ahead() const { return ahead_; }
  void setAhead(std::weak_ptr<KeyFramesAhead> ahead) { ahead_ = std::move(ahead); }

  /// Seconds; -1 when the field is not assigned, the middle of the span when no time was chosen.
  double dGetKeyFrameTime() const;
  void SetKeyFrameTime(double seconds);

  /// The path of the picture; "" when there is none.
  std::string strFile() const;

  /// On which thread a picture is taken.
  enum class Taking {
    Here,
    Aside,  // while the windows paint: a movie may need long for one
  };
  /// Makes the object of the picture, and the picture itself from the movie if there is none yet.
  void InitKeyFrameFile(Taking taking);

  /// Takes up the picture. kFileNotFound or kInvalidPicture for a bad one.
  void CreateKeyFrameIcons();

  void UpdateLocationKeyFrameObject(const std::string& from, const std::string& to);

 private:
  std::string makeBitmap(Taking taking) const;
  void takeStill(const std::string& movie, const std::string& target, Taking taking) const;
  void placeBitmap(const std::string& temporary, Chunk& chunk);
  /// Why the picture could not be brought into the data folder; "" when it was.
  std::string moveIntoFolder(const std::string& temporary, Chunk& chunk);

  ApplicationModule& app_;
  Video& video_;
  std::shared_ptr<MediaObject> objKeyframeObject_;
  Picture picKeyFrame_;
  Picture picKeyFrameSmall_;
  std::weak_ptr<KeyFramesAhead> ahead_;
};

/// The middle of a span, in seconds.
double middleOf(const Chunk& chunk);

}  // namespace velra
