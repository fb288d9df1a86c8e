// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

struct AVFormatContext;
struct AVPacket;
struct AVStream;

namespace velra {

class MovieFile;

enum class MovieTrack { Pictures, Sound };

/// What the times in a container belong to.
enum class MovieStamps {
  OfPictures,  // each picture has its own
  OfChunks,    // each chunk has its place in a row without gaps
  OfBytes,     // stretches of bytes have some, in which pictures begin or not
  None         // a stream without a container
};

/// One reader of a movie file: gives the packets of one chosen track in the order of the file.
/// No call waits longer than `kOpenLimit` or `kReadLimit`. One thread, but for `cancel`.
class MovieInput {
 public:
  static constexpr std::chrono::seconds kOpenLimit{5};
  static constexpr std::chrono::seconds kReadLimit{8};

  MovieInput();
  ~MovieInput();
  MovieInput(const MovieInput&) = delete;
  MovieInput& operator=(const MovieInput&) = delete;

  /// "" on success, else one sentence that tells why not.
  std::string open(const std::string& path);

  /// True when the file has such a track, be there a decoder for it or not. The picture of a cover
  /// is no track.
  bool has(MovieTrack track) const;

  /// Chooses the track that is read; false when the file has none that a decoder is known for.
  /// Stamps of bytes are then given as they stand in the file, and only for pictures: those that
  /// the library counts on from them start wrong after a seek.
  bool choose(MovieTrack track);

  /// The chosen track; null before that.
  AVStream* stream() const;

  /// See `MovieFile`.
  bool statesTooLarge() const;

  /// What the times of the file belong to.
  MovieStamps stamps() const;

  /// True when the stamps are counts of pictures, which cannot leap.
  bool countsPictures() const;

  /// True when packets of pictures carry the stamps of the file and no others.
  bool hasBareStamps() const;

  /// Bytes of the file.
  std::int64_t bytes() const;

  /// The container's idea of the length in seconds; 0 when it has none. It may be wrong.
  double claimedLength() const;

  /// Tells that the movie is taken: until then all reads together have `kOpenLimit`.
  void settle() { opening_ = false; }

  /// All reads of an opening that follow have so long, together.
  void allow(std::chrono::seconds limit);

  /// Next packet of the chosen track; false at the end of the file or when it cannot be read on.
  bool read(AVPacket& packet);

  /// Reads past so many packets; false when there are fewer.
  bool skip(int packets);

  /// Goes to the last place from which the picture of a time (in ticks of the track) can be
  /// decoded, as far as the container knows. False when the container refuses.
  bool seek(std::int64_t ticks);

  /// The stamp of the last key picture before a time, both in ticks of the track, as far as the
  /// library's table of keys has come; nothing when it has none.
  std::optional<std::int64_t> keyBefore(std::int64_t ticks) const;

  /// Goes to a place in the file. False when the container refuses.
  bool seekByte(std::int64_t position);

  /// True when the last `read` failed because the file ends there.
  bool atEnd() const { return atEnd_; }

  /// True when a key picture that an edit hides was read since the last seek: what follows it can
  /// be decoded, though no key picture comes out.
  bool hidesKey() const { return hidesKey_; }

  /// Goes to the start of the file. No single way works for all containers, so they are tried one
  /// after another until `arrived` finds there what it needs. False when none leads there.
  bool toStart(std::int64_t firstTicks, const std::function<bool()>& arrived);

  /// Makes the running call and all later ones fail soon. From any thread.
  void cancel();
  bool cancelled() const;

 private:
  bool goToStart(int way, std::int64_t firstTicks);
  bool reopen();
  bool sought(int result);

  std::unique_ptr<MovieFile> file_;
  int index_ = -1;
  bool opening_ = true;
  bool atEnd_ = false;
  bool hidesKey_ = false;
};

}  // namespace velra
