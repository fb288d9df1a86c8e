// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "movies/StampLine.h"

namespace velra {

class MovieInput;
class TrackDecoder;

/// The sound of a movie as an unbroken row of samples from a chosen time on: two channels, 16 bits,
/// 48000 a second. Each block stands where its own time puts it, to the sample after a seek and
/// within `kSlack` later; gaps are silence. One thread, but for `cancel`.
class SoundReader {
 public:
  static constexpr int kRate = 48000;
  static constexpr int kChannels = 2;
  static constexpr int kSlack = kRate / 50;

  SoundReader();
  ~SoundReader();
  SoundReader(const SoundReader&) = delete;
  SoundReader& operator=(const SoundReader&) = delete;

  /// `line` tells the times of the container's stamps; without it the first block of sound is time
  /// 0. "" on success, else one sentence.
  std::string open(const std::string& path, const std::optional<StampLine>& line);

  /// The samples that are read next begin at a time in seconds.
  void seek(double seconds);

  /// Replaces `samples` by the next ones, both channels in turn; false at the end of the sound.
  bool read(std::vector<std::int16_t>& samples);

  /// Makes the running call and all later ones fail soon. From any thread.
  void cancel();

 private:
  struct Converter;

  bool takeFirst(double seconds);
  bool startBehind(double seconds);
  bool rewind();
  bool decodesFirst();
  double timeOfBlock() const;
  void place(std::vector<std::int16_t>& samples);
  std::int64_t distance(double seconds) const;

  std::unique_ptr<MovieInput> input_;
  std::unique_ptr<TrackDecoder> decoder_;
  std::unique_ptr<Converter> converter_;
  StampLine line_;
  std::int64_t firstTicks_ = 0;
  double start_ = 0;          // where the row of samples begins, in seconds
  std::int64_t given_ = 0;    // samples a channel since then
  std::int64_t silence_ = 0;  // still to be given before the block
  bool exact_ = false;        // the next block is placed to the sample
};

}  // namespace velra
