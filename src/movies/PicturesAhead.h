// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <optional>

namespace velra {

struct MoviePicture;
struct PictureFrame;

/// The pictures of play that have been decoded and wait for their time. Not locked: its owner does
/// that.
class PicturesAhead {
 public:
  /// Empty again. `all` tells that no picture will come.
  void restart(bool all);

  /// Whether there is room for one more, and one to come.
  bool wantsMore() const;

  /// The picture behind which the next one follows; null at the start.
  std::shared_ptr<const MoviePicture> last() const { return last_; }

  /// Puts the next picture at the end; `pixels` may be null when it cannot be converted.
  void add(std::shared_ptr<const MoviePicture> picture, std::shared_ptr<const PictureFrame> pixels);

  /// No picture comes behind the last one, which is a failure unless that ends the movie.
  void end();

  struct Due {
    double time = 0;
    std::shared_ptr<const PictureFrame> pixels;  // null when none is due
  };

  /// Takes out the last picture whose time has come, with those before it, which have waited too
  /// long. `anyway` tells that the first one is due whatever its time.
  Due take(double now, bool anyway);

  /// The time of the first one; nothing when none waits.
  std::optional<double> nextTime() const;

  /// All have been taken, and no more will come.
  bool spent() const { return all_ && waiting_.empty(); }

  /// Decoding has ended before the movie did.
  bool failed() const { return failed_; }

 private:
  std::deque<Due> waiting_;
  std::shared_ptr<const MoviePicture> last_;
  bool all_ = false;
  bool failed_ = false;
};

}  // namespace velra
