// SPDX-License-Identifier: GPL-3.0-or-later
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <random>
#include <thread>

#include "base/Paths.h"
#include "faults/Experiment.h"
#include "faults/Runs.h"
#include "rescue/KeptWorkList.h"
#include "rescue/RescueStore.h"
#include "rescue/RescueWriter.h"

namespace velra::test {
namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::milliseconds;

constexpr int kMostEdits = 100'000;

// What the worker has done so far; its edits count from 1.
struct Progress {
  Report report;
  volatile int edits;
  volatile int saved;  // the last edit that a finished save held
  Clock::time_point editedAt[kMostEdits];
};

/// Edits all objects at once, has that kept four times a second as the main window does, and saves
/// now and then, until it is killed.
void work(Experiment& at, Progress& progress, std::mt19937 random) {
  RescueWriter writer(at.storePath);
  at.session.app.rescue = &writer;
  at.session.open(at.session.files.documentPath());
  const auto document = at.session.document();
  auto kept = Clock::now();
  for (int edit = 1; edit < kMostEdits; ++edit) {
    const std::string title = std::to_string(edit) + std::string(1'000 + random() % 300'000, 'x');
    progress.editedAt[edit] = Clock::now();
    progress.edits = edit;
    for (const ObjectRef& object : document->collObjects().described()) object->setStrTitle(title);
    std::this_thread::sleep_for(Milliseconds(random() % 60));
    if (Clock::now() - kept > Milliseconds(250)) {
      while (document->keepUnsavedWork()) {
      }
      kept = Clock::now();
    }
    if (random() % 4 == 0 && document->bSave()) progress.saved = edit;
  }
}

// By the path of each object, the edit that a fresh process finds there; -1 for a torn one.
using Edits = std::map<std::string, int>;

int editOf(const std::string& title) {
  return title.find_first_not_of('x', title.find('x')) == std::string::npos
             ? std::atoi(title.c_str())
             : -1;
}

Edits editsOnDisk(Experiment& at) {
  RescueWriter writer(at.storePath);
  at.session.app.rescue = &writer;
  Edits edits;
  if (at.session.open(at.session.files.documentPath()).empty()) {
    for (const ObjectRef& object : at.session.document()->collObjects().described()) {
      edits[strAbsolutePath(object->strGUID())] = editOf(object->strTitle());
    }
  }
  at.session.close();
  at.session.app.rescue = nullptr;
  return edits;
}

Edits editsKept(Experiment& at) {
  RescueStore store(at.storePath);
  Edits edits;
  for (const KeptWork& session : keptWork(store, "")) {
    for (const KeptObject& object : keptObjects(store, session.session)) {
      edits.emplace(object.path, editOf(object.title));
    }
  }
  return edits;
}

// The newest edit of which nothing is missing; -1 when the disk does not hold one whole save.
int newestOf(Experiment& at, int saved) {
  const Edits onDisk = editsOnDisk(at);
  const Edits kept = editsKept(at);
  int newest = kMostEdits;
  for (const auto& [path, edit] : onDisk) {
    if (edit != onDisk.begin()->second || edit < saved) return -1;
    const auto found = kept.find(path);
    newest = std::min(newest, found == kept.end() ? edit : std::max(edit, found->second));
  }
  return onDisk.empty() ? -1 : newest;
}

}  // namespace

int runKills(int kills) {
  Experiment at;
  Shared<Progress> progress;
  int torn = 0;
  double longest = 0;
  for (int i = 0; i < kills; ++i) {
    std::mt19937 random(static_cast<unsigned>(i));
    at.restore();
    progress->edits = 0;
    progress->saved = 0;
    const pid_t child = at.start(progress->report, [&] { work(at, *progress, random); });
    std::this_thread::sleep_for(Milliseconds(200 + random() % 2'000));
    ::kill(child, SIGKILL);
    const auto killedAt = Clock::now();
    Experiment::ended(child);
    const int edits = progress->edits;
    const int newest = edits == 0 ? 0 : newestOf(at, progress->saved);
    torn += newest < 0 ? 1 : 0;
    if (newest < 0 || newest >= edits) continue;
    const std::chrono::duration<double> missing = killedAt - progress->editedAt[newest + 1];
    longest = std::max(longest, missing.count());
  }
  std::printf("%d kills, %d torn, at most %.2f s of work missing\n", kills, torn, longest);
  return torn + (longest > 1 ? 1 : 0);
}

}  // namespace velra::test
