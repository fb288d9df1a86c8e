// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <map>

#include "rescue/InterruptedSave.h"
#include "rescue/KeptWorkList.h"
#include "rescue/ProcessIdentity.h"
#include "rescue/RescueStore.h"
#include "rescue/RescueTables.h"
#include "rescue/TornFile.h"
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
  // A plan over what a file holds now; without bytes there is none.
  PlannedFile planned(const std::string& name, const std::string& old, const std::string& bytes) {
    put(name, old);
    const std::string path = folder_ / name;
    return {path, bytes, keptStamp(path), blocksOf(old)};
  }
  void rename(const std::string& from, const std::string& to) {
    std::filesystem::rename(folder_ / from, folder_ / to);
  }
  std::map<std::string, std::string> files() const {
    auto all = folder_.snapshot();
    std::erase_if(all, [](const auto& file) { return file.first.starts_with("rescue"); });
    return all;
  }
  void put(const std::string& name, const std::string& bytes) {
    if (bytes.empty()) {
      deleteFile(folder_ / name);
    } else if (folder_.read(name) != bytes) {
      folder_.write(name, bytes);
    }
  }

  const TemporaryFolder folder_;
  const std::string document_ = folder_ / "film.xml";
  RescueStore store_{folder_ / "rescue.sqlite"};
};

TEST_F(InterruptedSave, EachFileIsBroughtToItsNewBytesUnlessSomebodyElseHasChangedOne) {
  const std::string old = bytesOf('a', 3000);
  const std::string bytes = bytesOf('b', 2000);
  const std::string longer = bytesOf('c', 3000);
  const std::string padded = bytes + std::string(old.size() - bytes.size(), '\n');
  const struct {
    const char* what;
    std::string old;      // "": no file
    std::string present;  // the same
    bool replaced;        // what lies there is kept, since it may be somebody's
    bool changed;
  } cases[] = {
      {"untouched", old, old, false, false},
      {"written", old, bytes, false, false},
      {"not made yet", "", "", false, false},
      {"begun", "", bytes.substr(0, 700), true, false},
      {"reserved", "", bytes.substr(0, 512) + std::string(1495, '\0'), true, false},
      {"some blocks", old, padded.substr(0, 1024) + old.substr(1024), true, false},
      {"the last block", old, old.substr(0, 2560) + padded.substr(2560), true, false},
      {"a part of a block", old, padded.substr(0, 300) + "</b" + old.substr(303), true, false},
      {"longer than before", bytes, longer.substr(0, 512) + bytes.substr(512), true, false},
      {"not cut off yet", old, padded, true, false},
      {"cut off too early", old, old.substr(0, bytes.size()), true, false},
      {"edited", old, "<a>theirs</a>", false, true},
      {"edited a little", old, "<a>x" + old.substr(4), false, true},
      {"deleted", old, "", false, true},
      {"come from elsewhere", "", "<a>theirs</a>", false, true},
  };
  const std::string name = "film_files/film_media1.xml";
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    const std::string wanted = one.old == bytes ? longer : bytes;
    const SessionId session = store_.begin(document_, process());
    store_.plans().planSave(
        session, {{planned(name, one.old, wanted), planned("film.xml", "before", "after")}, {}});
    put(name, one.present);
    const std::string told = finishInterruptedSaves(store_, document_);
    EXPECT_EQ(told.find("has been changed since") != std::string::npos, one.changed) << told;
    EXPECT_EQ(folder_.read(name), one.changed ? one.present : wanted);
    EXPECT_EQ(folder_.read("film.xml"), one.changed ? "before" : "after");
    EXPECT_EQ(store_.replaced(session).size(), one.replaced && !one.changed ? 1U : 0U);
    EXPECT_EQ(keptObjects(store_, session).size(), one.changed ? 2U : 0U);
    EXPECT_EQ(finishInterruptedSaves(store_, document_), "");
    store_.database().prepare("DELETE FROM session").run();
  }
}

TEST_F(InterruptedSave, ThoseOfOtherDocumentsAreFinishedButForWhatIsOpenOrAway) {
  const auto plan = [&](const std::string& program, const char* document, const char* file) {
    store_.plans().planSave(store_.begin(folder_ / document, program),
                            {{planned(file, "", "new")}, {}});
  };
  plan(processIdentity(), "film.xml", "film.xml");
  plan(process(), "other.xml", "other.xml");
  plan(process(), "away/third.xml", "away/third.xml");
  folder_.write("file", "");
  plan(process(), "fourth.xml", "file/below");
  EXPECT_EQ(finishInterruptedSaves(store_, document_),
            "A save of " + (folder_ / "other.xml") + " that was cut off has been finished.");
  const auto files = folder_.snapshot();
  EXPECT_EQ(files.count("other.xml"), 1U);
  EXPECT_EQ(files.count("film.xml") + files.count("away/third.xml"), 0U);
  for (int i = 0; i < 2; ++i) {
    const std::string told = finishInterruptedSaves(store_, folder_ / "fourth.xml");
    EXPECT_NE(told.find("could not be finished: Not a directory"), std::string::npos) << told;
  }
}

TEST_F(InterruptedSave, OneUnderAnotherNameIsUndoneUntilItsDocumentIsTouched) {
  // The picture 2 takes the place that 1 leaves, within the folder of the document itself.
  const std::string data = "copy_files/copy_";
  const std::map<std::string, std::string> before = {{data + "mediaobject1.bmp", "1"},
                                                     {data + "mediaobject2.bmp", "2"},
                                                     {data + "version1.xml", "theirs"},
                                                     {"copy.xml", "old"}};
  const std::vector<std::function<void()>> steps = {
      [&] { rename(data + "mediaobject1.bmp", data + "mediaobject3.bmp"); },
      [&] { rename(data + "mediaobject2.bmp", data + "mediaobject1.bmp"); },
      [&] { put(data + "version2.xml", "mine"); }, [&] { put("copy.xml", "new"); }};
  for (std::size_t done = 0; done <= steps.size(); ++done) {
    for (const auto& [name, bytes] : before) put(name, bytes);
    const SessionId session = store_.begin(document_, process());
    store_.plans().planCopy(
        session, {planned("copy.xml", "old", "new"),
                  {{folder_ / (data + "mediaobject3.bmp"), folder_ / (data + "mediaobject1.bmp")},
                   {folder_ / (data + "mediaobject1.bmp"), folder_ / (data + "mediaobject2.bmp")},
                   {folder_ / (data + "version2.xml"), {}}}});
    for (std::size_t i = 0; i < done; ++i) steps[i]();
    const auto cutOff = files();
    const std::string told = finishInterruptedSaves(store_, document_);
    EXPECT_EQ(told.empty(), done == steps.size());
    EXPECT_EQ(files(), done == steps.size() ? cutOff : before) << done;
    EXPECT_EQ(store_.plans().open(session).index(), 0U);
  }
  // As long as its bytes are not known, a document that was written since may be this save's.
  for (const bool written : {false, true}) {
    for (const auto& [name, bytes] : before) put(name, bytes);
    put(data + "mediaobject3.bmp", "");
    const auto atFirst = files();
    const SessionId session = store_.begin(document_, process());
    store_.plans().planCopy(
        session,
        {planned("copy.xml", "old", ""),
         {{folder_ / (data + "mediaobject3.bmp"), folder_ / (data + "mediaobject1.bmp")}}});
    steps.front()();
    if (written) put("copy.xml", "<torn");
    const auto cutOff = files();
    finishInterruptedSaves(store_, document_);
    EXPECT_EQ(files(), written ? cutOff : atFirst);
    EXPECT_EQ(store_.plans().open(session).index(), 0U);
  }
}

TEST_F(InterruptedSave, WhatIsStillInTheHiddenFolderOfACopyGoesBackWhateverTheDocumentIs) {
  put("film_files/film_mediaobject1.bmp", "new");
  const auto before = files();
  const std::string hidden = folder_ / ".copy_files.1/";
  const std::string data = folder_ / "copy_files/copy_";
  for (const bool written : {false, true}) {
    const SessionId session = store_.begin(document_, process());
    store_.plans().planCopy(
        session, {planned("copy.xml", "", ""),
                  {{data + "mediaobject1.bmp", folder_ / "film_files/film_mediaobject1.bmp"},
                   {data + "mediaobject2.bmp", {}},
                   {data + "mediaobject3.bmp", {}}},
                  hidden});
    std::filesystem::create_directory(hidden);
    rename("film_files/film_mediaobject1.bmp", ".copy_files.1/copy_mediaobject1.bmp");
    put(".copy_files.1/copy_mediaobject2.bmp", "half");
    if (written) put("copy.xml", "<theirs/>");
    finishInterruptedSaves(store_, document_);
    auto expected = before;
    if (written) expected["copy.xml"] = "<theirs/>";
    EXPECT_EQ(files(), expected);
    put("copy.xml", "");
    EXPECT_FALSE(std::filesystem::exists(hidden));
  }
}

TEST_F(InterruptedSave, OnlyTheDocumentsOwnFilesAreRemovedAndOnlyAsTheyWere) {
  const std::string foreign = folder_.write("other_files/other_media1.xml", "x");
  const std::vector<std::string> stay = {
      folder_.write("film_files/notes.xml", "x"), folder_.write("film_files/below/film_a.xml", "x"),
      folder_.write("film_media1.xml", "x"),      foreign,
      folder_ / "film_files/film_link.xml",       folder_.write("film_files/film_media2.xml", "x")};
  ASSERT_EQ(::symlink(foreign.c_str(), (folder_ / "film_files/film_link.xml").c_str()), 0);
  const std::string goes = folder_.write("film_files/film_media1.xml", "x");
  SavePlan plan{{}, {{goes, keptStamp(goes)}}};
  for (const std::string& path : stay) plan.removals.push_back({path, keptStamp(path)});
  const SessionId session = store_.begin(document_, process());
  store_.plans().planSave(session, plan);
  store_.plans().finishSave(session);
  folder_.write("film_files/film_media2.xml", "a new object");

  finishInterruptedSaves(store_, document_);
  EXPECT_FALSE(bFileExists(goes));
  for (const std::string& path : stay) EXPECT_TRUE(bFileExists(path)) << path;
  EXPECT_EQ(store_.plans().open(session).index(), 0U);
}

}  // namespace
}  // namespace velra
