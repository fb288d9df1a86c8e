// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <limits>
#include <memory>
#include <stop_token>
#include <string>

#include "movies/MovieIndex.h"
#include "movies/PictureCache.h"
#include "movies/PictureReader.h"
#include "platform/movie/PixelSize.h"

namespace velra {

/// The pictures of a movie by their times. Time 0 is the first picture that comes out of the
/// decoder, whatever offset the container carries. The picture for t is the last one that starts at
/// or before t, where t is taken in whole milliseconds, as files keep it, and `kNearFrame` before a
/// start counts as that picture. One thread, but for `cancel`.
class FrameSource {
 public:
  /// So long an opening reads in each case, to know more than the container tells.
  static constexpr std::chrono::milliseconds kFirstLook{100};

  explicit FrameSource(std::chrono::milliseconds firstLook = kFirstLook);
  ~FrameSource();
  FrameSource(const FrameSource&) = delete;
  FrameSource& operator=(const FrameSource&) = delete;

  /// "" on success, else one sentence that tells why not. A file of which no picture can be decoded
  /// is refused, and one whose pictures cannot be told their times. `stop` lets it fail soon.
  /// Called once.
  std::string open(const std::string& path, const std::stop_token& stop = {});

  /// True when the file has a track of pictures, also when they cannot be decoded.
  bool hasPictures() const;

  /// The picture for a time in seconds: the first one for times before it, the last one for times
  /// behind the end. Null when the file cannot be read any more, or after `cancel`.
  std::shared_ptr<const MoviePicture> at(double seconds);

  /// The picture behind one; null behind the last.
  std::shared_ptr<const MoviePicture> after(const MoviePicture& picture);

  /// Seconds from the first picture to the end of the last; measured at the first call.
  double duration();

  /// Seconds a picture: what the file tells, or the usual distance where that is another.
  double frameTime() const { return frameTime_; }

  /// The coded size of the first picture, without correction of the aspect.
  PixelSize size() const { return reader_.size(); }

  /// The size in square pixels.
  PixelSize shownSize() const { return reader_.shownSize(); }

  /// What the stamps of the container exceed times by.
  const StampLine& stampLine() const { return line_; }

  /// Makes the running call and all later ones fail soon. From any thread.
  void cancel();

  /// Seeks of the container so far: what a test or a measurement wants to keep low.
  int seeks() const { return reader_.starts(); }

 private:
  using Found = std::shared_ptr<const MoviePicture>;

  void setTimes();
  void setLine();
  Found find(double target);
  double worthDecoding(double target) const;
  Found step(bool& ended);
  Found decodeOn(double target);
  void leaveOut(double target, double start);
  void leaveOutNone();
  Found seekTo(double target, double lead);
  Found seekByKeys(double target, double lead);
  double measure();

  const std::chrono::milliseconds firstLook_;
  PictureReader reader_;
  MovieIndex index_;
  StampLine line_;
  PictureCache cache_;
  double frameTime_ = 0;
  double group_ = 0;  // seconds from key to key at most, as far as is known; 0: it is not
  double lastTarget_ = 0;
  double whole_ = 0;          // seconds before a target in which none are left out
  bool mayLeaveOut_ = false;  // pictures on the way to another
  double wholeFrom_ = -std::numeric_limits<double>::infinity();  // before that some are
  double duration_ = -1;                                         // not measured yet
};

}  // namespace velra
