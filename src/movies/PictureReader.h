// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "movies/PictureCache.h"
#include "movies/PictureClock.h"
#include "movies/StampLine.h"
#include "platform/movie/PixelSize.h"

namespace velra {

class MovieInput;
class TrackDecoder;
struct KeyPlace;

/// What the first picture of a movie that comes out of the decoder tells of it.
struct FirstPicture {
  std::int64_t ticks = 0;                 // its stamp, in those of the track
  double stamp = PictureClock::kUnknown;  // the same in seconds
  std::int64_t position = 0;              // where its packet stands, in bytes
  int bytes = 0;                          // of its packet, by which it is known
  bool ownStamps = false;                 // the file gives stamps to pictures, if not to all
  double statedFrameTime = 0;             // see `PictureReader`
  PixelSize size;
  PixelSize shownSize;
};

/// Decodes the pictures of a movie one after the other, from any place on, with the times at which
/// they are shown: 0 is the first picture that comes out of the decoder. One thread, but for
/// `MovieInput::cancel`.
class PictureReader {
 public:
  using Found = std::shared_ptr<const MoviePicture>;

  PictureReader();
  ~PictureReader();
  PictureReader(const PictureReader&) = delete;
  PictureReader& operator=(const PictureReader&) = delete;

  /// "" on success, else one sentence that tells why not. `known` is what an earlier opening of the
  /// same file found, which then need not be decoded; null without one. Called once.
  std::string open(const std::string& path, const FirstPicture* known = nullptr);

  /// What was decoded or known when it was opened.
  const FirstPicture& first() const { return first_; }

  MovieInput& input() { return *input_; }
  const MovieInput& input() const { return *input_; }
  PixelSize size() const { return first_.size; }

  /// The size in square pixels, as the file tells their shape: no side is smaller than the coded
  /// one.
  PixelSize shownSize() const { return first_.shownSize; }

  /// Seconds a picture as the file tells it; 0 when that cannot be true.
  double statedFrameTime() const { return first_.statedFrameTime; }

  /// Seconds of a tick of the track.
  double tick() const;

  /// The stamp of the first picture in seconds; not a number when it has none.
  double firstStamp() const { return first_.stamp; }

  /// Where the packet of the first picture stands, in bytes.
  std::int64_t firstPosition() const { return first_.position; }

  /// True when a key is the first picture.
  bool isFirst(const KeyPlace& key) const;

  /// How pictures without stamps go on, and how far stamps may leap; see `PictureClock`. `line` is
  /// where they do.
  void setClock(double frameTime, double leap, StampLine line);

  /// Time of the picture that came out last; nothing before a start and after the end.
  std::optional<double> time() const;

  /// Forgets where it stands, as after the input was used by others.
  void forget();

  /// Starts at the first picture.
  bool rewind();

  /// Starts at or before a time as far as the container knows. False when nothing with a sure time
  /// comes.
  bool startBehind(double seconds);

  /// Starts at a key, whose times begin `shift` seconds before the first picture. False when it
  /// does not come.
  bool startAt(const KeyPlace& key, double shift);

  /// Pictures before a time may be left out when no other leans on them, so that those that come
  /// may seem longer than they are. Only where each picture has a stamp of its own.
  void leaveOutBefore(double seconds);

  /// True when no key is known between the picture that came out last and a time, so that the way
  /// on is no longer than the one from a key.
  bool leadsTo(double seconds) const;

  /// Brings one more picture out of the decoder and gives the one before it, whose end is known by
  /// that; null when there was none. `ended` tells that none came.
  Found step(bool& ended);

  /// Starts so far: what a test or a measurement wants to keep low.
  int starts() const { return starts_; }

 private:
  struct Current;

  bool takeFirst();
  double tellFrameTime() const;
  bool decodesFirst();
  double stampOf(const AVFrame& frame) const;
  bool hasOwnStamp(const AVFrame& frame) const;
  double take(const AVFrame& frame);
  std::int64_t ticksAt(double seconds) const;
  Found complete(double end);

  std::unique_ptr<MovieInput> input_;
  std::unique_ptr<TrackDecoder> decoder_;
  std::unique_ptr<Current> current_;  // came out last; its end is not known yet
  PictureClock clock_;
  StampLine line_;
  FirstPicture first_;
  int starts_ = 0;
};

}  // namespace velra
