#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

struct AVFormatContext;
struct AVPacket;
struct AVStream;

namespace velra {

enum class MovieTrack { Pictures, Sound };

/// One reader of a movie file: gives the packets of one chosen track in the order of the file.
/// Takes plain files in known formats alone, so that a playlist or a picture that calls itself a
/// movie makes nothing else be read. No call waits longer than `kOpenLimit` or `kReadLimit`. One
/// thread, but for `cancel`.
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

  /// Chooses the track that is read; false when the file has none that a decoder is known for.
  bool choose(MovieTrack track);

  /// The chosen track; null before that.
  const AVStream* stream() const;

  /// The container's idea of the length in seconds; 0 when it has none. It may be wrong.
  double claimedLength() const;

  /// Tells that the movie is taken: until then all reads together have `kOpenLimit`.
  void settle() { opening_ = false; }

  /// Next packet of the chosen track; false at the end of the file or when it cannot be read on.
  bool read(AVPacket& packet);

  /// Goes to the last place from which the picture of a time (in ticks of the track) can be
  /// decoded, as far as the container knows. False when the container refuses.
  bool seek(std::int64_t ticks);

  /// Goes to the start of the file. No single way works for all containers: the caller tries
  /// 0, 1... up to `kWaysToStart` - 1 until the first picture comes.
  static constexpr int kWaysToStart = 5;
  bool toStart(int way, std::int64_t firstTicks);

  /// Makes the running call and all later ones fail soon. From any thread.
  void cancel() { cancelled_ = true; }
  bool cancelled() const { return cancelled_; }

 private:
  struct Context;

  static int interrupted(void* self);
  void allow(std::chrono::seconds limit);
  std::string openFormat();
  bool reopen();

  std::string path_;
  std::unique_ptr<Context> context_;
  int index_ = -1;
  bool opening_ = true;
  std::chrono::steady_clock::time_point deadline_;
  std::atomic<bool> cancelled_{false};
};

}  // namespace velra
