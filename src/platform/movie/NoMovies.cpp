// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/NoMovies.h"

#include <utility>

namespace velra {

namespace {

class RefusingGraph final : public MediaGraph {
 public:
  explicit RefusingGraph(std::string reason) : reason_(std::move(reason)) {}

  std::string RenderFile(const std::string& /*path*/, const std::stop_token& /*stop*/) override {
    return reason_;
  }
  void Run() override {}
  void Pause() override {}
  void Stop() override {}
  double Duration() const override { return 0; }
  double CurrentPosition() const override { return 0; }
  void setCurrentPosition(double /*seconds*/) override {}
  double AvgTimePerFrame() const override { return 0; }
  int videoWidth() const override { return 0; }
  int videoHeight() const override { return 0; }
  void setShownSize(int /*width*/, int /*height*/) override {}
  std::shared_ptr<const PictureFrame> picture() const override { return nullptr; }
  void setNotify(std::function<void(Notice)> /*notify*/) override {}

 private:
  const std::string reason_;
};

}  // namespace

NoMovies::NoMovies(std::string reason) : reason_(std::move(reason)) {}

std::unique_ptr<MediaGraph> NoMovies::graph() {
  return std::make_unique<RefusingGraph>(reason_);
}

std::unique_ptr<MovieStills> NoMovies::stills(const std::string& /*movie*/, std::string& reason) {
  reason = reason_;
  return nullptr;
}

double NoMovies::length(const std::string& /*movie*/, const std::stop_token& /*stop*/) {
  return 0;
}

MovieFacts NoMovies::facts(const std::string& /*movie*/) {
  MovieFacts facts;
  facts.reason = reason_;
  return facts;
}

FoundShots NoMovies::shots(const std::string& /*movie*/, const ShotSearch& /*search*/,
                           const std::stop_token& /*stop*/,
                           const std::function<void(double)>& /*tell*/) {
  return {{}, reason_};
}

EmbeddedPicture NoMovies::smallJpeg(std::string_view /*bitmap*/, int /*mostWidth*/) {
  return {};
}

FileDigests NoMovies::digests(const std::function<std::string_view()>& /*nextPiece*/) {
  FileDigests digests;
  digests.reason = reason_;
  return digests;
}

}  // namespace velra
