// SPDX-License-Identifier: GPL-3.0-or-later

// The store of unsaved work, which a bad disk may have written: whatever it says is kept is listed
// and brought back into a new document.

#include "fuzz/FuzzSession.h"
#include "platform/files/Files.h"
#include "rescue/KeptWorkList.h"
#include "rescue/Recovery.h"
#include "rescue/RescueStore.h"

namespace velra::fuzz {
namespace {

void read(RescueStore& store, const test::TemporaryFolder& folder) {
  interruptedSaves(store, "");
  int number = 0;
  for (const KeptWork& work : keptWork(store, "")) {
    require(!strWhen(work.changed).empty());
    const std::string path = folder / ("new" + std::to_string(++number) + ".xml");
    const auto kept = keptObjects(store, work.session);
    const Recovered recovered = recoverDocument(work.document, kept, path);
    require(recovered.failure.empty() == bFileExists(path));
  }
  pruneKeptWork(store, 0, 1000);
}

}  // namespace
}  // namespace velra::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const velra::test::TemporaryFolder folder;
  try {
    velra::RescueStore store(
        folder.write("rescue.sqlite", std::string(velra::fuzz::textOf(data, size))));
    velra::fuzz::read(store, folder);
  } catch (const velra::DatabaseError&) {
    // The program goes on without what was kept, and puts such a store aside.
  }
  return 0;
}
