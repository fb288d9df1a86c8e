// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "rescue/InterruptedSave.h"
#include "rescue/ProcessIdentity.h"
#include "rescue/RescueStore.h"
#include "support/TemporaryFolder.h"

namespace velra {
namespace {

using test::TemporaryFolder;

std::string bytesOf(char letter, std::size_t size) {
  return "<a>" + std::string(size, letter) + "</a>";
}

class InterruptedSave : public ::testing::Test {
 protected:
  std::string process() const {
    const std::string identity = processIdentity();
    return identity.substr(0, identity.rfind(' ')) + " 1";  // one that has ended
  }
  PlannedFile planned(const std::string& name, const std::string& bytes) const {
    return {folder_ / name, bytes, fileStamp(folder_ / name)};
  }

  const TemporaryFolder folder_;
  const std::string document_ = folder_ / "film.xml";
  RescueStore store_{folder_ / "rescue.sqlite"};
};

TEST_F(InterruptedSave, EveryFileIsBroughtToItsNewBytes) {
  const std::string torn = folder_.write("film_files/film_media1.xml", "old");
  folder_.write("film_files/film_media2.xml", "old");
  folder_.write("film_files/film_media4.xml", "old");
  const SessionId session = store_.begin(document_, process());
  store_.planSave(session,
                  {{planned("film_files/film_media1.xml", "new1"),
                    planned("film_files/film_media2.xml", "new2"),
                    planned("film_files/film_media3.xml", "new3"),
                    planned("film_files/film_media4.xml", "new4"), planned("film.xml", "document")},
                   {}});
  folder_.write("film_files/film_media1.xml", "n");
  folder_.write("film_files/film_media2.xml", "new2");

  EXPECT_FALSE(finishInterruptedSaves(store_, document_).empty());
  for (const char* number : {"1", "2", "3", "4"}) {
    EXPECT_EQ(folder_.read(std::string("film_files/film_media") + number + ".xml"),
              std::string("new") + number);
  }
  EXPECT_EQ(folder_.read("film.xml"), "document");
  ASSERT_EQ(store_.replaced(session).size(), 1U) << "what nobody planned to write over";
  EXPECT_EQ(store_.replaced(session)[0].bytes, "n");
  EXPECT_EQ(finishInterruptedSaves(store_, document_), "");
}

TEST_F(InterruptedSave, ARunningProgramFinishesItsOwnAndAFailureIsTriedAgain) {
  store_.planSave(store_.begin(document_, processIdentity()), {{planned("film.xml", "one")}, {}});
  EXPECT_EQ(finishInterruptedSaves(store_, document_), "");
  EXPECT_EQ(folder_.read("film.xml"), "");

  folder_.write("file", "");
  store_.planSave(store_.begin(document_, process()), {{planned("file/below", "two")}, {}});
  for (int i = 0; i < 2; ++i) {
    EXPECT_NE(finishInterruptedSaves(store_, document_).find("could not"), std::string::npos);
  }
}

TEST_F(InterruptedSave, OnlyTheDocumentsOwnFilesAreRemoved) {
  const std::string foreign = folder_.write("other_files/other_media1.xml", "x");
  const std::vector<std::string> stay = {
      folder_.write("film_files/notes.xml", "x"), folder_.write("film_files/below/film_a.xml", "x"),
      folder_.write("film_media1.xml", "x"), foreign, folder_ / "film_files/film_link.xml"};
  ASSERT_EQ(::symlink(foreign.c_str(), stay.back().c_str()), 0);
  const std::string goes = folder_.write("film_files/film_media1.xml", "x");
  SavePlan plan{{}, stay};
  plan.removals.push_back(goes);
  const SessionId session = store_.begin(document_, process());
  store_.planSave(session, plan);
  store_.finishSave(session);

  finishInterruptedSaves(store_, document_);
  EXPECT_FALSE(bFileExists(goes));
  for (const std::string& path : stay) EXPECT_TRUE(bFileExists(path)) << path;
  EXPECT_FALSE(store_.openPlan(session));
}

// Saves two files of one letter for ever.
[[noreturn]] void saveUntilKilled(const TemporaryFolder& folder, const std::string& document,
                                  std::size_t size) {
  RescueStore store(folder / "rescue.sqlite");
  const SessionId session = store.begin(document, processIdentity());
  for (char letter = 'a';; letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1)) {
    SavePlan plan;
    for (const char* name : {"film_files/film_media1.xml", "film.xml"}) {
      plan.files.push_back({folder / name, bytesOf(letter, size), fileStamp(folder / name)});
    }
    store.planSave(session, plan);
    for (const PlannedFile& file : plan.files) writeFileInPlace(file.path, file.bytes);
    store.finishSave(session);
  }
}

TEST_F(InterruptedSave, AProgramKilledAtAnyInstantLeavesAWholeSave) {
  folder_.write("film_files/film_media1.xml", bytesOf('a', 10));
  folder_.write("film.xml", bytesOf('a', 10));
  for (int i = 0; i < 12; ++i) {
    const std::size_t size = i % 2 == 0 ? 1000 : 300'000;
    const pid_t child = ::fork();
    if (child == 0) saveUntilKilled(folder_, document_, size);
    ::usleep(static_cast<useconds_t>(20'000 + 7'001 * i));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    finishInterruptedSaves(store_, document_);
    const std::string bytes = folder_.read("film.xml");
    EXPECT_EQ(bytes, folder_.read("film_files/film_media1.xml")) << i;
    EXPECT_EQ(bytes, bytesOf(bytes[3], bytes.size() - 7)) << i;
  }
}

}  // namespace
}  // namespace velra
