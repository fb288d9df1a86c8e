// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/DecodedMovies.h"

#include "movies/CutFinder.h"
#include "movies/Digests.h"
#include "movies/FactsReader.h"
#include "movies/FrameSource.h"
#include "movies/MovieGraph.h"
#include "movies/MovieLength.h"
#include "movies/PictureConverter.h"
#include "movies/SmallJpeg.h"

namespace velra {

namespace {

class DecodedStills final : public MovieStills {
 public:
  std::string open(const std::string& movie) { return source_.open(movie); }

  std::shared_ptr<const PictureFrame> at(double seconds, PixelSize size) override {
    if (size.width <= 0 || size.height <= 0) size = source_.size();
    const auto picture = source_.at(seconds);
    return picture ? converter_.convert(*picture->frame, size.width, size.height) : nullptr;
  }

 private:
  FrameSource source_;
  PictureConverter converter_;
};

class DecodedMovies final : public MovieLibrary {
 public:
  std::unique_ptr<MediaGraph> graph() override { return std::make_unique<MovieGraph>(); }

  std::unique_ptr<MovieStills> stills(const std::string& movie, std::string& reason) override {
    auto stills = std::make_unique<DecodedStills>();
    reason = stills->open(movie);
    if (!reason.empty()) stills.reset();
    return stills;
  }

  double length(const std::string& movie, const std::stop_token& stop) override {
    return movieLength(movie, stop);
  }

  MovieFacts facts(const std::string& movie) override { return readFacts(movie); }

  FoundShots shots(const std::string& movie, const ShotSearch& search, const std::stop_token& stop,
                   const std::function<void(double)>& tell) override {
    return findCuts(movie, search, stop, tell);
  }

  EmbeddedPicture smallJpeg(std::string_view bitmap, int mostWidth) override {
    return velra::smallJpeg(bitmap, mostWidth);
  }

  FileDigests digests(const std::function<std::string_view()>& nextPiece) override {
    return digestsOfPieces(nextPiece);
  }
};

}  // namespace

MovieLibrary& decodedMovies() {
  static DecodedMovies movies;
  return movies;
}

}  // namespace velra
