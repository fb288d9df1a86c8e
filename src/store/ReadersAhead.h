// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "store/ParsedAhead.h"

namespace velra {

/// The threads of a `ParsedAhead` and what they share with it. Each of them holds this object, so
/// that one whose file does not come can be left to itself.
class ReadersAhead : public std::enable_shared_from_this<ReadersAhead> {
 public:
  using File = ParsedAhead::File;
  using Wanted = ParsedAhead::Wanted;
  using PictureOf = std::function<std::string(const XmlDocument&)>;

  ReadersAhead(std::vector<Wanted> files, PictureOf pictureOf);

  std::size_t count() const { return wanted_.size(); }
  /// Begins the threads; without them the one that takes a file reads it.
  void start();
  /// The next file in place of the one before.
  void takeInto(File& file, const std::function<void()>& waits);
  /// No file is begun any more.
  void end();

 private:
  using Lock = std::unique_lock<std::mutex>;
  using Clock = std::chrono::steady_clock;

  struct Reader {
    std::vector<XmlDocument> gone;  // a document is freed on its own thread while that lives
    std::thread thread;
  };
  // A file between its reader and the one that takes it.
  struct Slot {
    File file;
    Reader* reader = nullptr;
    std::uint64_t large = 0;  // bytes of one that waited for room
    Clock::duration spent{};  // reading
    bool ready = false;
  };

  void addReader();
  void work(Reader& reader);
  Slot read(std::size_t place, Reader& reader);
  void give(std::size_t place, Slot slot);
  void fill(std::size_t place, Slot& slot);
  bool waitForRoom(std::size_t place, Slot& slot);
  void parse(const Wanted& wanted, const FileBytes& read, File& file) const;
  bool mayBegin() const;
  bool isSlow() const;

  const std::vector<Wanted> wanted_;
  const PictureOf pictureOf_;
  std::mutex mutex_;
  std::condition_variable ready_;  // for the one that takes
  std::condition_variable room_;   // for the readers
  std::vector<Slot> slots_;        // a ring
  Reader* takenFrom_ = nullptr;    // the reader of the file that was taken last
  std::size_t begun_ = 0;          // the first that no reader has begun
  std::size_t taken_ = 0;          // how many have been taken
  std::size_t read_ = 0;           // how many wait to be
  std::uint64_t ahead_ = 0;        // bytes of large files that are not taken yet
  int full_ = 0;                   // readers that wait since these are too many
  int working_ = 0;                // readers that have not ended
  std::atomic<bool> ended_ = false;
  Clock::duration spent_{};  // reading, by all
  std::deque<Reader> readers_;
};

}  // namespace velra
