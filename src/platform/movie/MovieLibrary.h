// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <stop_token>
#include <string>
#include <string_view>

#include "platform/files/Digest.h"
#include "platform/movie/MediaGraph.h"
#include "platform/movie/MovieFacts.h"
#include "platform/movie/PixelSize.h"
#include "platform/movie/ShotFinder.h"
#include "platform/movie/Thumbnail.h"

namespace velra {

/// Pictures of one movie, which stays open for the next. One thread.
class MovieStills {
 public:
  virtual ~MovieStills() = default;

  /// The picture that is shown at a time (seconds), in the given size, in the movie's own for 0.
  /// Null when it cannot be decoded.
  virtual std::shared_ptr<const PictureFrame> at(double seconds, PixelSize size) = 0;
};

/// Everything that the program takes from the decoders of movies and from the sound library. These
/// bring two hundred libraries more, which take longer to load than all the rest of a start, so
/// whatever leans on them stands in a module of its own (`movies/`), behind this interface. The
/// functions of the other headers of this folder forward to it and tell what each does. From any
/// thread.
class MovieLibrary {
 public:
  virtual ~MovieLibrary() = default;

  virtual std::unique_ptr<MediaGraph> graph() = 0;
  /// Null when the movie is refused; `reason` is then one sentence.
  virtual std::unique_ptr<MovieStills> stills(const std::string& movie, std::string& reason) = 0;
  virtual double length(const std::string& movie, const std::stop_token& stop) = 0;
  virtual MovieFacts facts(const std::string& movie) = 0;
  virtual FoundShots shots(const std::string& movie, const ShotSearch& search,
                           const std::stop_token& stop,
                           const std::function<void(double)>& tell) = 0;
  /// Takes the bytes of a bitmap file.
  virtual EmbeddedPicture smallJpeg(std::string_view bitmap, int mostWidth) = 0;
  /// Of what `nextPiece` gives, until that is empty.
  virtual FileDigests digests(const std::function<std::string_view()>& nextPiece) = 0;
};

/// The one library of the process. The first call loads it, which takes some 50 ms; who calls
/// meanwhile waits. Where the module cannot be loaded, or belongs to another version of the
/// program, it is one that refuses every movie with a sentence that says so.
MovieLibrary& movieLibrary();

/// Has a thread load it, so that nobody waits for that later. Called once.
void loadMoviesAhead();

/// True while that thread is at it. The usual end of a process would wait for it.
bool areMoviesLoading();

}  // namespace velra
