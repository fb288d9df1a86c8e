// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <optional>

#include "platform/files/Files.h"
#include "rescue/KeptWorkList.h"
#include "rescue/RescueStore.h"
#include "rescue/RescueWriter.h"
#include "store/IOManager.h"
#include "support/DocumentSession.h"

namespace velra {
namespace {

namespace fs = std::filesystem;
using test::DocumentSession;
using std::chrono_literals::operator""h;

const std::string kTheirs = "<Version><VersionTitle>theirs</VersionTitle></Version>";

void remove(DocumentSession& session, const std::string& name) {
  ObjectRef removed = session.object(name);
  session.document()->RemoveObject(removed);
}

/// All bytes of others that a store holds.
std::string allReplaced(const std::string& path) {
  RescueStore store(path);
  std::string all;
  Statement rows = store.database().prepare("SELECT path, bytes FROM replaced");
  while (rows.next()) all += rows.text(0) + ": " + rows.text(1) + '\n';
  return all;
}

TEST(GuardedFiles, WhatAnotherProgramHasWrittenIsKeptBeforeItGoes) {
  const std::string kept = ": changed by another program; what was there is kept.";
  const std::string lost = ": changed by another program; what was there could not be kept.";
  const struct {
    const char* what;
    const char* mine;    // an object that is edited, or removed
    const char* theirs;  // the file that another program writes
    bool removed;
    bool withStore;
    std::string told;  // at the save, behind the path
  } cases[] = {
      {"an object", "version1", "version1", false, true, kept},
      {"the document", "film", "film", false, true, kept},
      {"one that goes", "version1", "version1", true, true, kept},
      {"without a store", "version1", "version1", false, false, lost},
      {"another object", "version1", "version2", false, true, ""},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    DocumentSession session;
    session.files.document({"version1", "version2"});
    session.files.version("version1", {});
    session.files.version("version2", {});
    const std::string store = session.folder / "state/rescue.sqlite";
    const std::string changed = session.files.path(one.theirs);
    for (const char* name : {"version1", "version2"}) {
      fs::last_write_time(session.files.path(name), fs::file_time_type::clock::now() - 1h);
    }
    {
      std::optional<RescueWriter> writer;
      if (one.withStore) session.app.rescue = &writer.emplace(store);
      ASSERT_EQ(session.open(session.files.documentPath()), "");
      if (one.removed) {
        remove(session, one.mine);
      } else {
        session.object(one.mine)->setStrTitle("mine");
      }
      ASSERT_EQ(writeFileInPlace(changed, kTheirs), "");
      session.window.setStrStatusBarText("");
      ASSERT_TRUE(session.document()->bSave());
      EXPECT_EQ(session.window.strStatusBarText(), one.told.empty() ? "" : changed + one.told);
      session.window.setStrStatusBarText("");
      session.object("version2")->setStrTitle("more");
      EXPECT_TRUE(session.document()->bSave());
      EXPECT_EQ(session.window.strStatusBarText().empty(), !one.told.empty())
          << "what was told and kept is not told again";
      session.close();
      session.app.rescue = nullptr;
    }
    if (one.withStore) {
      EXPECT_EQ(allReplaced(store), changed + ": " + kTheirs + '\n');
    }
  }
}

TEST(GuardedFiles, APictureIsToldFromAnotherByItsStamp) {
  DocumentSession session;
  session.files.smallLadder();
  const std::string picture = session.folder.write("film_files/film_mediaobject1.bmp", "BM old");
  const std::string store = session.folder / "state/rescue.sqlite";
  {
    RescueWriter writer(store);
    session.app.rescue = &writer;
    ASSERT_EQ(session.open(session.files.documentPath()), "");
    IOManager& io = *session.document()->io();
    io.guard().noteStamp(picture, fileStamp(picture));
    io.guard().goes(picture, io.rescue());
    session.folder.write("film_files/film_mediaobject1.bmp", "BM theirs");
    io.guard().goes(picture, io.rescue());
    io.guard().goes(picture, io.rescue());
    session.close();
    session.app.rescue = nullptr;
  }
  EXPECT_EQ(allReplaced(store), picture + ": BM theirs\n");
}

TEST(GuardedFiles, OfOtherFilesNoneIsDeletedAndOnlyThoseThatTheDocumentNamesAreWritten) {
  DocumentSession session;
  const auto version = test::ObjectText("Version").text("VersionTitle", "old").xml();
  const std::string photo = session.folder.write("photo.bmp", "BM");
  const std::string foreign = session.folder.write("other_files/other_version1.xml", version);
  const std::string unnamed = session.folder.write("film_files/notes.xml", version);
  const std::string linked = session.folder.write("elsewhere.xml", version);
  const std::string link = session.folder / "film_files/film_version9.xml";
  fs::create_symlink(linked, link);
  session.files.write(
      "film", test::ObjectText("AVDocument")
                  .guids("ExpressedBy", {"film_files/film_version1.xml", foreign, unnamed, link}));
  session.files.version("version1", {});
  session.files.mainExpression("video1", "version1");
  ASSERT_EQ(session.open(session.files.documentPath()), "");
  ASSERT_EQ(session.document()->colChilds().size(), 4U);

  for (const ObjectRef& child : session.document()->colChilds()) child->setStrTitle("new");
  EXPECT_TRUE(session.document()->bSave());
  EXPECT_EQ(session.window.strStatusBarText(),
            foreign + " and 1 more: written outside of the document's folder.");
  for (const std::string& path : {foreign, unnamed, linked}) {
    EXPECT_NE(readFile(path).bytes.find("new"), std::string::npos) << path;
  }

  auto children = session.document()->colChilds();
  for (ObjectRef& child : children) session.document()->RemoveObject(child);
  session.document()->io()->RemoveGUID(photo);
  EXPECT_TRUE(session.document()->bSave());
  EXPECT_EQ(session.window.strStatusBarText(),
            photo + " and 3 more: left alone, since it does not belong to the document.");
  session.close();
  for (const std::string& path : {photo, foreign, unnamed, linked, link}) {
    EXPECT_TRUE(bFileExists(path)) << path;
  }
  EXPECT_FALSE(bFileExists(session.files.path("version1")));
}

TEST(GuardedFiles, ASaveWithoutTheDocumentsOwnFileMarksNothingForDeletion) {
  DocumentSession session;
  session.files.smallLadder();
  ASSERT_EQ(session.open(session.files.documentPath()), "");
  remove(session, "version1");
  fs::remove(session.files.documentPath());
  fs::create_directory(session.files.documentPath());
  EXPECT_FALSE(session.document()->bSave());
  session.close();
  EXPECT_TRUE(bFileExists(session.files.path("version1")));
  session.takeShown();
}

TEST(CopiedFolder, IsSeenByASegmentThatBelongsToTheFirstPlace) {
  for (const std::string name : {"video1", "video7"}) {
    DocumentSession session;
    session.files.smallLadder();
    session.files.segment("video2", "video1", 0, 1000);
    std::string text = session.folder.read("film_files/film_video2.xml");
    const std::string parent = session.files.id("video1");
    text.replace(text.find(parent), parent.size(), "/first/film_files/film_" + name + ".xml");
    session.files.writeRaw("film_video2.xml", text);
    ASSERT_EQ(session.open(session.files.documentPath()), "");
    const CopiedFolder& copied = session.document()->copiedFolder();
    EXPECT_EQ(copied.other, name == "video1" ? "/first/film_files/" : "") << name;
    EXPECT_FALSE(copied.works);
  }
}

}  // namespace
}  // namespace velra
