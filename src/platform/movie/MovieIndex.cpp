// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/MovieIndex.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include "platform/movie/MovieInput.h"
#include "platform/movie/PictureClock.h"
#include "platform/movie/PictureReader.h"

namespace velra {

namespace {

using std::chrono::milliseconds;

// So long is read in each case; what is not read by then is told by its stamps, if these can be
// trusted.
constexpr milliseconds kScanLimit{100};

// Stamps of bytes come several times a second, and a recording that begins anew shows by them.
constexpr double kLeapOfBytes = 10;
constexpr double kLeapOfPictures = 3600;

// Holds a key at any usual rate.
constexpr std::int64_t kTailBytes = 8'000'000;

// How much more or less time the rest of a file may take for its bytes than its beginning.
constexpr double kMostShare = 3;

// For a stream that does not tell its rate.
constexpr double kAssumedFrame = 0.04;

constexpr char kNoSureTimes[] = "The times of its pictures cannot be told.";

class MovieIndexer {
 public:
  MovieIndexer(PictureReader& reader, MovieIndex& index)
      : reader_(reader), input_(reader.input()), index_(index) {
    frameTime_ = reader.statedFrameTime();
    if (frameTime_ <= 0) frameTime_ = kAssumedFrame;
  }

  std::string run() {
    if (!input_.hasBareStamps()) {
      if (input_.stamps() == MovieStamps::OfPictures) readPictures();
      return index_.leaps && index_.lost ? kNoSureTimes : "";
    }
    readBytes();
    if (index_.stampedLength >= 0) return {};
    if (!index_.complete)
      return "Its pictures carry no sure times, and they are too many to count.";
    index_.byKeys = true;
    index_.leap = kLeapOfBytes;
    findFirst();
    return {};
  }

 private:
  // Not every way leads to the start; on another the first picture is missing.
  void readPictures() {
    const double first = reader_.firstStamp();
    const auto ticks = static_cast<std::int64_t>(std::llround(first / reader_.tick()));
    const auto arrived = [&] {
      PictureIndexer(input_, frameTime_, kLeapOfPictures, index_).read(kScanLimit);
      index_.sure = index_.sure && !(index_.offset > first + frameTime_ / 2);
      return index_.sure;
    };
    if (!std::isnan(first)) input_.toStart(ticks, arrived);
    index_.tookLong = !index_.complete;
    if (!index_.known()) index_.leaps = false;
    if (index_.known()) index_.leap = kLeapOfPictures;
    index_.first = index_.known() ? first - index_.offset : 0;
  }

  void readBytes() {
    if (!input_.seekByte(0)) return;
    PictureIndexer start(input_, frameTime_, kLeapOfBytes, index_);
    start.read(kScanLimit);
    if (index_.complete) return;
    index_.tookLong = true;
    if (!mayTrustStamps()) return start.read(MovieInput::kOpenLimit);
    if (trustsStamps() || !input_.seekByte(0)) return;
    PictureIndexer(input_, frameTime_, kLeapOfBytes, index_).read(MovieInput::kOpenLimit);
  }

  // Where keys have stamps, these lead to every picture, unless they leap.
  bool mayTrustStamps() const {
    return !std::isnan(reader_.firstStamp()) && index_.stampedKeys && !index_.leaps &&
           index_.bytes > 0;
  }

  // They may leap farther on.
  bool trustsStamps() {
    const double first = reader_.firstStamp();
    const std::int64_t bytes = input_.bytes();
    const double expected =
        index_.last * static_cast<double>(bytes) / static_cast<double>(index_.bytes);
    if (!input_.seekByte(std::max<std::int64_t>(0, bytes - kTailBytes))) return false;
    PictureIndex tail;
    PictureIndexer(input_, frameTime_, kLeapOfBytes, tail).read(kScanLimit);
    if (!tail.complete || std::isnan(tail.offset) || tail.leaps) return false;
    const double last = tail.offset + tail.last - first;
    if (last < expected / kMostShare || last > expected * kMostShare) return false;
    index_.stampedLength = last + tail.lastFields * frameTime_ / PictureClock::kFields;
    return true;
  }

  void findFirst() {
    const double stamp = reader_.firstStamp();
    if (!std::isnan(stamp) && !std::isnan(index_.offset)) {
      index_.first = stamp - index_.offset;
      return;
    }
    const auto key = std::find_if(index_.keys.begin(), index_.keys.end(),
                                  [&](const KeyPlace& one) { return reader_.isFirst(one); });
    index_.first = key == index_.keys.end() ? 0 : key->time;
  }

  PictureReader& reader_;
  MovieInput& input_;
  MovieIndex& index_;
  double frameTime_;
};

}  // namespace

double MovieIndex::length(double frameTime) const {
  if (stampedLength >= 0) return stampedLength;
  return last - first + lastFields * frameTime / PictureClock::kFields;
}

std::string indexMovie(PictureReader& reader, MovieIndex& index) {
  std::string reason = MovieIndexer(reader, index).run();
  reader.forget();
  return reason;
}

}  // namespace velra
