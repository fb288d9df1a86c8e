// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/movie/MediaGraph.h"
#include "protocol/Expression.h"

namespace velra {

class AdvancedSlider;
class ApplicationModule;
class ToolFace;
class TranscriptView;

using MediaGraphFactory = std::function<std::unique_ptr<MediaGraph>()>;

/// The movie in the expression tool: it keeps timeline, time code and transcript in step with the
/// movie's position. Every jump goes through SeekTo and leaves the movie paused. Times are seconds.
class Player {
 public:
  struct Parts {
    ApplicationModule& app;
    AdvancedSlider& advsld;
    TranscriptView& transcript;
    ToolFace& face;
    MediaGraphFactory makeGraph;
  };

  Player(ExpressionRef obj, Parts parts);

  /// Opens the movie and shows the start of the object's span. An empty path says so in a box and
  /// goes on with no movie. False when the movie is absent or cannot be played: a box has told why,
  /// and the form must not open.
  bool LoadMovie(const std::string& path);
  /// Stops and releases the movie; never raises.
  void ClosePlayer();

  void SeekTo(double seconds);
  void cmdPlay();
  void cmdPause();
  void cmdStop();
  void PlayOrPause();
  void cmdForward() { step(1); }
  void cmdRewind() { step(-1); }
  /// So many frames on, or back for a negative number. A step that would leave the object's span
  /// ends on its bound, from which no step leads out; what lies outside already steps on, but never
  /// out of the movie.
  void step(int frames);
  void Timer1();
  /// Tells people who hear the window where the movie stands.
  void announcePosition();

  /// The time code at the movie's frame rate, and back. The way back takes exactly four numbers:
  /// kSubscriptOutOfRange for fewer or more, kTypeMismatch for other texts, kDivisionByZero while
  /// the frame rate is unknown.
  std::string TimeToText(double seconds) const;
  double TextToTime(const std::string& text) const;

  bool hasMovie() const { return objMediaControl_ != nullptr; }
  /// The movie; kNoObject when there is none.
  MediaGraph& objMediaControl() const;
  double CurrentPosition() const { return objMediaControl().CurrentPosition(); }
  /// The time, or the end of the movie that it lies behind. A movie of unknown length has but a
  /// start.
  double withinMovie(double seconds) const;
  /// The span of the object; kNoObject when it has none.
  Chunk& ckChunk() const;
  /// Frames per second; 0 while unknown.
  double dFrameRate() const { return dFrameRate_; }
  bool bPlaying() const { return bPlaying_; }

 private:
  bool refuse(const std::string& reason, const std::string& path);
  void measureFrameRate();
  void takeSpan();
  void showStart();

  ExpressionRef obj_;
  Parts parts_;
  std::unique_ptr<MediaGraph> objMediaControl_;
  std::shared_ptr<Chunk> ckChunk_;
  double dFrameRate_ = 0;
  bool bPlaying_ = false;  // Stop leaves it as it was
  bool runs_ = false;
};

}  // namespace velra
