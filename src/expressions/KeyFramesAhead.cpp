// SPDX-License-Identifier: GPL-3.0-or-later
#include "expressions/KeyFramesAhead.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <utility>

#include "base/RunTimeError.h"
#include "platform/files/Files.h"
#include "platform/movie/FrameGrabber.h"
#include "store/DataFolder.h"

namespace velra {

namespace {

// A decoder starts alone, so two of them have both cores work. Neighbours share the way from a key
// when one thread takes them.
constexpr std::size_t kThreads = 2;
constexpr std::size_t kTimesOfThread = 4;

}  // namespace

KeyFramesAhead::KeyFramesAhead(std::string movie, std::vector<double> times)
    : movie_(std::move(movie)), times_(std::move(times)) {
  for (std::size_t i = 0; i < kThreads; ++i) begin();
}

KeyFramesAhead::~KeyFramesAhead() {
  begun_ = times_.size();
  while (!ready_.empty() || !coming_.empty()) deleteFile(next().file);
}

void KeyFramesAhead::begin() {
  const std::size_t end = std::min(begun_ + kTimesOfThread, times_.size());
  if (begun_ == end) return;
  const auto at = [this](std::size_t place) {
    return times_.begin() + static_cast<std::ptrdiff_t>(place);
  };
  coming_.push_back(std::async(
      // Deferred where the machine gives no further thread.
      std::launch::async | std::launch::deferred,
      [movie = movie_, times = std::vector(at(begun_), at(end))] { return take(movie, times); }));
  begun_ = end;
}

KeyFramesAhead::Stills KeyFramesAhead::take(const std::string& movie,
                                            const std::vector<double>& times) {
  Stills stills;
  std::optional<FrameGrabber> grabber;
  for (const double time : times) {
    Still still{strTempPath() + strMakeGUIDText() + ".bmp", {}};
    try {
      if (!grabber) grabber.emplace(movie);
      grabber->grab(time, {}, still.file);
    } catch (const std::exception& error) {
      still = {{}, error.what()};  // whoever asks for the picture is told
    }
    stills.push_back(std::move(still));
  }
  return stills;
}

KeyFramesAhead::Still KeyFramesAhead::next() {
  if (ready_.empty()) {
    const Stills stills = coming_.front().get();
    coming_.pop_front();
    ready_.assign(stills.begin(), stills.end());
    begin();
  }
  Still still = std::move(ready_.front());
  ready_.pop_front();
  return still;
}

std::string KeyFramesAhead::take(const std::string& movie, double seconds) {
  const auto left = times_.begin() + static_cast<std::ptrdiff_t>(taken_);
  const auto sought = movie == movie_ ? std::find(left, times_.end(), seconds) : times_.end();
  if (sought == times_.end()) return {};
  // Segments between that could not be made.
  for (auto time = left; time != sought; ++time) deleteFile(next().file);
  taken_ = static_cast<std::size_t>(sought - times_.begin()) + 1;
  const Still still = next();
  if (still.file.empty()) throw RunTimeError(kInvalidArgument, still.reason);
  return still.file;
}

}  // namespace velra
