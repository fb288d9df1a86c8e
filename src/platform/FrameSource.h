#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/FrameGrabber.h"
#include "platform/PictureCache.h"

namespace velra {

class MovieInput;
class TrackDecoder;

/// The pictures of a movie by their times. Time 0 is the first picture that comes out of the
/// decoder, whatever offset the container carries. The picture for t is the last one that starts at
/// or before t; less than a millisecond before a start counts as that picture (a quarter of a frame
/// at most), because bounds in files are whole milliseconds, some containers keep such too, and
/// sums of frame lengths fall short by the last bits. One thread, but for `cancel`.
class FrameSource {
 public:
  FrameSource();
  ~FrameSource();

  /// "" on success, else one sentence that tells why not. A file of which no picture can be decoded
  /// is refused. Called once.
  std::string open(const std::string& path);

  /// The picture for a time in seconds: the first one for times before it, the last one for times
  /// behind the end. Null when the file cannot be read any more, or after `cancel`.
  std::shared_ptr<const MoviePicture> at(double seconds);

  /// The picture behind one; null behind the last.
  std::shared_ptr<const MoviePicture> after(const MoviePicture& picture);

  /// Seconds from the first picture to the end of the last; measured at the first call.
  double duration();

  /// Seconds a picture, on average.
  double frameTime() const { return frameTime_; }

  /// The coded size of the first picture, without correction of the aspect.
  PixelSize size() const { return size_; }

  /// The time in seconds that the container gives to the first picture.
  double origin() const;

  /// Makes the running call and all later ones fail soon. From any thread.
  void cancel();

  /// Seeks of the container so far: what a test or a measurement wants to keep low.
  int seeks() const { return seeks_; }

 private:
  struct Current;
  using Found = std::shared_ptr<const MoviePicture>;

  bool takeFirst();
  void setFrameTime();
  double medianDistance();
  double secondsOf(std::int64_t ticks) const;
  double timeOf(const AVFrame& frame) const;
  double tolerance() const;
  Found complete(double end);
  Found step(bool& ended);
  Found decodeOn(double target);
  Found seekTo(double target, double sought);
  bool startBehind(double seconds);
  bool rewind();
  double measure();

  std::unique_ptr<MovieInput> input_;
  std::unique_ptr<TrackDecoder> decoder_;
  std::unique_ptr<Current> current_;  // came out last; its end is not known yet
  PictureCache cache_;
  std::int64_t firstTicks_ = 0;
  bool ownTimes_ = false;  // the file gives times to pictures, if not to all
  double frameTime_ = 0;
  double duration_ = -1;  // not measured yet
  PixelSize size_;
  int seeks_ = 0;
};

}  // namespace velra
