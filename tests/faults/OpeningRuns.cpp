// SPDX-License-Identifier: GPL-3.0-or-later
#include <malloc.h>

#include <cstdio>
#include <filesystem>

#include "faults/Experiment.h"
#include "faults/Runs.h"
#include "rescue/RescueWriter.h"

// The sanitizer's own name; without one it is null.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes() __attribute__((weak));

namespace velra::test {
namespace {

std::size_t entriesOf(const char* folder) {
  const auto entries = std::filesystem::directory_iterator(folder);
  return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

// What a process holds. A sanitizer has a heap of its own.
struct Holdings {
  std::size_t threads = entriesOf("/proc/self/task");
  std::size_t handles = entriesOf("/proc/self/fd");
  std::size_t bytes = __sanitizer_get_current_allocated_bytes
                          ? __sanitizer_get_current_allocated_bytes()
                          : ::mallinfo2().uordblks;
};

void openAndClose(Experiment& at, int number) {
  RescueWriter writer(at.storePath);
  at.session.app.rescue = &writer;
  at.session.open(at.session.files.documentPath());
  const auto document = at.session.document();
  document->setStrTitle(std::to_string(number));
  at.session.expression("video1")->AddSubExpression("cut", 2, 3);
  while (document->keepUnsavedWork()) {
  }
  if (number % 2 == 0) document->bSave();
  at.session.takeShown();
  at.session.window.takeStatusTexts();
  at.session.factory.objects.clear();
  at.session.factory.forms.clear();
  at.session.close();
  at.session.app.rescue = nullptr;
}

}  // namespace

int runOpenings(int openings) {
  Experiment at;
  const auto openSome = [&](int count) {
    for (int i = 0; i < count; ++i) {
      at.restore();
      openAndClose(at, i);
    }
  };
  openSome(10);  // what is made once for a process is there now
  const Holdings before;
  openSome(openings);
  const Holdings after;
  std::printf("%d openings: threads %zu to %zu, handles %zu to %zu, heap %zu to %zu bytes\n",
              openings, before.threads, after.threads, before.handles, after.handles, before.bytes,
              after.bytes);
  const bool same = after.threads == before.threads && after.handles == before.handles;
  // The memory of the heap is used a little otherwise each time, and what the library keeps at hand
  // of freed memory counts as used by its own figures; a leak grows with the openings.
  const std::size_t atHand = __sanitizer_get_current_allocated_bytes ? 0 : 65536;
  const std::size_t most = before.bytes + atHand + static_cast<std::size_t>(openings) * 100;
  return same && after.bytes <= most ? 0 : 1;
}

}  // namespace velra::test
