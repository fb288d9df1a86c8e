// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/RescueWriter.h"

#include <cstdio>
#include <ctime>
#include <memory>
#include <utility>

#include "base/Paths.h"
#include "platform/files/Files.h"
#include "rescue/KeptWorkList.h"
#include "rescue/RescueStore.h"

namespace velra {

namespace {

constexpr std::int64_t kOldestSeconds = std::int64_t{30} * 24 * 60 * 60;
constexpr std::int64_t kMostBytes = 1'000'000'000;

// A store that is damaged must not keep the program from keeping what comes now; it stays on the
// disk for whoever can read it.
void putAside(const std::string& path) {
  const std::string aside = path + "-damaged-" + std::to_string(std::time(nullptr));
  for (const char* part : {"", "-wal", "-shm"}) {
    std::rename((path + part).c_str(), (aside + part).c_str());
  }
}

// Null with the reason when there can be none.
std::unique_ptr<RescueStore> openedStore(const std::string& path, std::string& reason) {
  makeFolders(folderOf(path));
  try {
    std::unique_ptr<RescueStore> store;
    try {
      store = std::make_unique<RescueStore>(path);
    } catch (const DamagedDatabase&) {
      putAside(path);
      store = std::make_unique<RescueStore>(path);
    }
    pruneKeptWork(*store, std::time(nullptr) - kOldestSeconds, kMostBytes);
    return store;
  } catch (const DatabaseError& error) {
    reason = error.what();
    return nullptr;
  }
}

// Why a task failed, or "".
std::string performed(const RescueWriter::Task& task, RescueStore& store) {
  try {
    task(store);
    return {};
  } catch (const DatabaseError& error) {
    return error.what();
  }
}

}  // namespace

RescueWriter::RescueWriter(std::string path)
    : path_(std::move(path)), thread_([this] { work(); }) {}

RescueWriter::~RescueWriter() {
  {
    const Lock lock(mutex_);
    ending_ = true;
  }
  changed_.notify_all();
  thread_.join();
}

std::future<std::string> RescueWriter::add(Task task) {
  Job job{std::move(task), {}};
  std::future<std::string> outcome = job.outcome.get_future();
  {
    const Lock lock(mutex_);
    jobs_.push_back(std::move(job));
  }
  changed_.notify_all();
  return outcome;
}

void RescueWriter::post(Task task) {
  add(std::move(task));
}

std::string RescueWriter::run(Task task) {
  return add(std::move(task)).get();
}

bool RescueWriter::finish(std::chrono::milliseconds bound) {
  Lock lock(mutex_);
  return changed_.wait_for(lock, bound, [this] { return jobs_.empty() && !busy_; });
}

std::string RescueWriter::failure() const {
  const Lock lock(mutex_);
  return failure_;
}

void RescueWriter::work() {
  std::string noStore;
  std::unique_ptr<RescueStore> store = openedStore(path_, noStore);
  Lock lock(mutex_);
  failure_ = noStore;
  while (true) {
    busy_ = false;
    changed_.notify_all();
    changed_.wait(lock, [this] { return ending_ || !jobs_.empty(); });
    if (jobs_.empty()) return;
    Job job = std::move(jobs_.front());
    jobs_.pop_front();
    busy_ = true;
    lock.unlock();
    // The disk may have been full, or the folder not there yet.
    if (!store) store = openedStore(path_, noStore);
    std::string failure = store ? performed(job.task, *store) : noStore;
    lock.lock();
    failure_ = failure;
    job.outcome.set_value(std::move(failure));
  }
}

}  // namespace velra
