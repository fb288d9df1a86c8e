// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "store/HiddenFolder.h"

namespace velra {

class GuardedFiles;
class NewFileNames;

/// Makes new files on a thread of its own while the bytes of the next ones are made, and on more of
/// them where each file takes long, as on a shelf behind a network. After one that fails none is
/// begun any more. Nothing may lie at the paths to which they come. Those of a hidden folder come
/// there when all are made. To be used by the thread of the document.
class FilesBehind {
 public:
  /// `waits` is called some ten times in a second while a file cannot be handed over yet.
  FilesBehind(NewFileNames& names, GuardedFiles& guard, HiddenFolder hidden,
              std::function<void()> waits);
  FilesBehind(const FilesBehind&) = delete;
  FilesBehind& operator=(const FilesBehind&) = delete;
  /// Waits for what was begun.
  ~FilesBehind();

  /// Hand a file over; they wait when too many are waiting. The status text is what the person saw
  /// then. A path that is moved from may be the next one's to come to, so that moving waits for all
  /// that were handed over and is done at once.
  void write(const std::string& guid, std::string bytes, std::string status);
  void copy(const std::string& from, const std::string& to, std::string status);
  void move(const std::string& from, const std::string& to, std::string status);
  /// Has what was handed over brought to the disk of a folder, beside what comes next.
  void bringToDisk(const std::string& folder, std::string status);

  /// What has failed, the first in the order of handing over.
  struct Failure {
    std::string reason;     // "" when nothing has
    std::string unwritten;  // the path, when it was to be written and is not in the reason
    std::string status;     // what was handed over with it
  };
  /// Of what has been done so far.
  Failure failure();

  struct Outcome {
    std::vector<bool> made;  // of each that was handed over, what is brought to the disk among them
    Failure failure;
  };
  /// Waits for all.
  Outcome finish();
  /// Tells the names and the guard of those that were made. To be called behind `finish`.
  void note();
  /// Whether a disk that fails has left some in the hidden folder, which go from there by another
  /// try.
  bool bHiddenLeft() const { return hidden_.bMade(); }
  void takeBackLeft();

 private:
  enum class Kind { Write, Copy, Move, ToDisk };
  struct File {
    Kind kind;
    std::string to;
    std::string from;
    std::string bytes;  // empty when it has been written
    std::string status;
    std::uint64_t print = 0;  // of the bytes
    bool made = false;
    std::string failure = {};  // why it could not be made
  };
  using Lock = std::unique_lock<std::mutex>;

  void add(File file);
  void addNow(File file);
  void waitForRoom(Lock& lock);
  void startThread();
  void work();
  void makeNext(Lock& lock);
  bool atRest() const;
  void make(File& file) const;
  void bringOver();
  void bringOver(File& file);
  void takeBack(const File& file) const;
  void join();
  void note(const File& file);

  NewFileNames& names_;
  GuardedFiles& guard_;
  HiddenFolder hidden_;  // made with the first file
  std::function<void()> waits_;
  std::mutex mutex_;
  std::condition_variable handed_;  // a file, or the last one
  std::condition_variable done_;    // enough for the thread of the document to go on
  std::deque<File> files_;          // what was handed over, none taken out
  std::size_t next_ = 0;            // which is to be begun
  std::size_t wanted_ = 0;          // for so many of them the threads are woken
  int busy_ = 0;                    // threads with a file
  bool toDisk_ = false;             // one of them waits for the disk
  bool complete_ = false;           // no more will be handed over
  bool failed_ = false;
  std::vector<std::thread> threads_;  // last: they use the others
};

}  // namespace velra
