// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/MovieIndex.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include "movies/MovieInput.h"
#include "movies/PictureClock.h"
#include "movies/PictureReader.h"
#include "movies/PictureTable.h"

namespace velra {

namespace {

using std::chrono::milliseconds;

// Who does not want to wait so long for a file that must be read whole can cancel.
constexpr std::chrono::seconds kWholeLimit{60};

// Stamps of bytes come several times a second, and a recording that begins anew shows by them.
constexpr double kLeapOfBytes = 10;
constexpr double kLeapOfPictures = 3600;

// Holds a key at any usual rate.
constexpr std::int64_t kTailBytes = 8'000'000;
constexpr milliseconds kTailLook{100};

// How much more or less time the rest of a file may take for its bytes than its beginning.
constexpr double kMostShare = 3;

// For a stream that does not tell its rate.
constexpr double kAssumedFrame = 0.04;

constexpr char kNoSureTimes[] = "The times of its pictures cannot be told.";
constexpr char kTooMany[] = "Its pictures carry no sure times, and they are too many to count.";

class MovieIndexer {
 public:
  MovieIndexer(PictureReader& reader, milliseconds firstLook, MovieIndex& index)
      : reader_(reader), input_(reader.input()), firstLook_(firstLook), index_(index) {
    frameTime_ = reader.statedFrameTime();
    if (frameTime_ <= 0) frameTime_ = kAssumedFrame;
  }

  std::string run() {
    if (!input_.hasBareStamps()) {
      return input_.stamps() == MovieStamps::OfPictures ? readPictures() : "";
    }
    readBytes();
    if (index_.stampedLength >= 0) return {};
    if (!index_.complete) return kTooMany;
    index_.byKeys = true;
    index_.leap = kLeapOfBytes;
    findFirst();
    return {};
  }

 private:
  std::string readPictures() {
    const double first = reader_.firstStamp();
    if (std::isnan(first)) return {};
    const auto ticks = static_cast<std::int64_t>(std::llround(first / reader_.tick()));
    // Not every way leads to the start; on another the first picture is missing.
    const auto read = [&](milliseconds limit) {
      return input_.toStart(ticks, [&] {
        readFromHere(kLeapOfPictures, limit);
        index_.sure = index_.sure && holds(first);
        return index_.sure || limit == kWholeLimit;
      });
    };
    read(firstLook_);
    if (index_.sure && mayLeapFartherOn()) {
      read(kWholeLimit);
      if (!index_.complete) return kTooMany;
    }
    const bool told = index_.known() && !index_.lost && index_.line.rises();
    if (index_.line.leaps() && !told) return kNoSureTimes;
    if (index_.known()) index_.leap = kLeapOfPictures;
    index_.first = index_.known() ? index_.line.timeOf(first) : 0;
    return {};
  }

  // Where stamps fall, as in a file that was put together badly, a way to its start may end behind
  // all that is shown from there on.
  bool holds(double first) const {
    const double slack = frameTime_ / 2;
    const bool begunInTime = index_.line.offsetAt(0) <= first + slack;  // not with no stamp at all
    return begunInTime && index_.line.timeOf(first) <= index_.last + slack;
  }

  bool mayLeapFartherOn() {
    if (index_.complete) return false;
    if (index_.line.leaps()) return true;
    return !input_.countsPictures() && !tableShowsNoLeap(reader_, frameTime_, kLeapOfPictures);
  }

  void readFromHere(double leap, milliseconds limit) {
    PictureIndexer indexer(input_, frameTime_, leap, index_);
    if (limit == kWholeLimit) input_.allow(kWholeLimit);
    indexer.read(limit);
  }

  void readBytes() {
    if (!input_.seekByte(0)) return;
    readFromHere(kLeapOfBytes, firstLook_);
    if (index_.complete) return;
    if (mayTrustStamps() && trustsStamps()) return;
    if (input_.seekByte(0)) readFromHere(kLeapOfBytes, kWholeLimit);
  }

  // Where keys have stamps, these lead to every picture, unless they leap.
  bool mayTrustStamps() const {
    return !std::isnan(reader_.firstStamp()) && index_.stampedKeys && !index_.line.leaps() &&
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
    PictureIndexer(input_, frameTime_, kLeapOfBytes, tail).read(kTailLook);
    const double offset = tail.line.offsetAt(0);
    if (!tail.complete || std::isnan(offset) || tail.line.leaps()) return false;
    const double last = offset + tail.last - first;
    if (last < expected / kMostShare || last > expected * kMostShare) return false;
    index_.stampedLength = last + tail.lastFields * frameTime_ / PictureClock::kFields;
    return true;
  }

  void findFirst() {
    const double byStamp = reader_.firstStamp() - index_.line.offsetAt(0);
    if (byStamp <= index_.last) {  // not where one of them is unknown
      index_.first = byStamp;
      return;
    }
    const auto key = std::find_if(index_.keys.begin(), index_.keys.end(),
                                  [&](const KeyPlace& one) { return reader_.isFirst(one); });
    index_.first = key == index_.keys.end() ? 0 : key->time;
  }

  PictureReader& reader_;
  MovieInput& input_;
  milliseconds firstLook_;
  MovieIndex& index_;
  double frameTime_;
};

}  // namespace

double MovieIndex::length(double frameTime) const {
  if (stampedLength >= 0) return stampedLength;
  return last - first + lastFields * frameTime / PictureClock::kFields;
}

std::string indexMovie(PictureReader& reader, milliseconds firstLook, MovieIndex& index) {
  std::string reason = MovieIndexer(reader, firstLook, index).run();
  reader.forget();
  return reason;
}

}  // namespace velra
