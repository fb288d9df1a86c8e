// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MovieLibrary.h"

namespace velra {

/// Stands where the library of movies cannot be loaded: refuses each movie with that reason.
class NoMovies final : public MovieLibrary {
 public:
  explicit NoMovies(std::string reason);

  std::unique_ptr<MediaGraph> graph() override;
  std::unique_ptr<MovieStills> stills(const std::string& movie, std::string& reason) override;
  double length(const std::string& movie, const std::stop_token& stop) override;
  MovieFacts facts(const std::string& movie) override;
  FoundShots shots(const std::string& movie, const ShotSearch& search, const std::stop_token& stop,
                   const std::function<void(double)>& tell) override;
  EmbeddedPicture smallJpeg(std::string_view bitmap, int mostWidth) override;
  FileDigests digests(const std::function<std::string_view()>& nextPiece) override;

 private:
  const std::string reason_;
};

}  // namespace velra
