// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <exception>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/files/Files.h"
#include "platform/xml/XmlDocument.h"

namespace velra {

/// The files of a list, which threads of its own read and parse ahead of the one that takes them,
/// in the order of the list. Where a shelf far away is waited for there are more threads than
/// cores.
class ParsedAhead {
 public:
  struct Wanted {
    std::string path;
    FileStamp known;  // a file that is as it was then is not read
  };
  struct File {
    FileStamp stamp;  // before it was read
    bool known = false;
    bool parsed = false;  // else the document has the reason
    XmlDocument document;
    std::exception_ptr raised;
  };

  explicit ParsedAhead(std::vector<Wanted> files);
  ParsedAhead(const ParsedAhead&) = delete;
  ParsedAhead& operator=(const ParsedAhead&) = delete;
  /// Waits for what is being read.
  ~ParsedAhead();

  /// The next file, until the next call. To be called as often as there are files. Raises what its
  /// reading raised.
  const File& take();

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
    bool ready = false;
  };

  void addReader();
  const File& current() const;
  void work(Reader& reader);
  void read(std::size_t place, Reader& reader);
  bool mayBegin() const;

  const std::vector<Wanted> wanted_;
  std::mutex mutex_;
  std::condition_variable ready_;  // for the one that takes
  std::condition_variable room_;   // for the readers
  std::vector<Slot> slots_;        // a ring
  File current_;
  Reader* currentReader_ = nullptr;
  std::size_t begun_ = 0;    // the first that no reader has begun
  std::size_t taken_ = 0;    // how many have been taken
  std::uint64_t ahead_ = 0;  // bytes of files that are not taken yet
  int full_ = 0;             // readers that wait since these are too many
  bool ended_ = false;
  Clock::duration spent_{};     // reading, by all
  std::deque<Reader> readers_;  // last: they use the others
};

}  // namespace velra
