// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <mutex>
#include <string>
#include <thread>

namespace velra {

class RescueStore;

/// The thread that uses the store, so that the windows need not wait for the disk. Tasks are done
/// one after the other, in the order in which they came. Without a store (a home that cannot be
/// written, a full disk) each task fails, and the program goes on without; each tries to open it
/// once more.
class RescueWriter {
 public:
  using Task = std::function<void(RescueStore&)>;

  /// Folders above the file are made when they are missing; a file that is no store is put aside.
  explicit RescueWriter(std::string path);
  RescueWriter(const RescueWriter&) = delete;
  RescueWriter& operator=(const RescueWriter&) = delete;
  /// Does first what is still waiting.
  ~RescueWriter();

  /// Has a task done later.
  void post(Task task);

  /// Has a task done and waits for it. Why it failed, or "".
  std::string run(Task task);

  /// Waits until all that was posted is done; false when that takes longer.
  bool finish(std::chrono::milliseconds bound);

  /// Why the last task failed; "" when it did not.
  std::string failure() const;

 private:
  using Lock = std::unique_lock<std::mutex>;

  struct Job {
    Task task;
    std::promise<std::string> outcome;
  };

  std::future<std::string> add(Task task);
  void work();

  const std::string path_;
  mutable std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<Job> jobs_;
  bool busy_ = true;  // the store is being opened, or a task done
  bool ending_ = false;
  std::string failure_;
  std::thread thread_;  // last: it uses the others
};

}  // namespace velra
