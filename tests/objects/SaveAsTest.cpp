// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "base/RunTimeError.h"
#include "platform/files/Files.h"
#include "schema/SEColl.h"
#include "store/IOManager.h"
#include "support/DocumentSession.h"
#include "support/DocumentState.h"
#include "support/Faults.h"
#include "support/FirstDifference.h"
#include "support/RandomDocument.h"
#include "support/ShownBoxes.h"

namespace {

constexpr int kAll = 1'000'000;
int goodSyncs = kAll;  // so many, then they fail

}  // namespace

/// In place of the system's, since no disk fails on demand.
extern "C" {

int syncfs(int file) noexcept {
  if (goodSyncs-- > 0) return static_cast<int>(::syscall(SYS_syncfs, file));
  errno = ENOSPC;
  return -1;
}

int fsync(int file) {
  if (goodSyncs-- > 0) return static_cast<int>(::syscall(SYS_fsync, file));
  errno = ENOSPC;
  return -1;
}

}  // extern "C"

namespace velra {
namespace {

namespace fs = std::filesystem;
using test::Damage;
using test::DocumentSession;
using test::stateOf;
using Texts = std::vector<std::string>;

/// The plain way up to the saving: each name is counted from 1 and every object is asked for each
/// rename.
void renamePlainly(AVDocument& document, const std::string& path) {
  ObjectRegistry& objects = document.collObjects();
  for (const ObjectRef& object : objects.described()) {
    if (object.get() == &document) continue;
    const std::string newGUID = document.io()->strCreateGUID(objects, *object, path);
    const std::string oldGUID = object->strGUID();
    object->setStrGUID(newGUID);
    for (const ObjectRef& other : objects.described())
      other->RenameAllRelativesGUID(oldGUID, newGUID);
  }
}

Texts statesBelow(AVDocument& document) {
  Texts states = stateOf(document);
  states.erase(states.begin());  // the document itself gets its new path at another time
  for (std::string& state : states) {
    std::erase(state, '*');
    if (const std::size_t at = state.find(" changed"); at != std::string::npos) state.erase(at, 8);
  }
  return states;
}

TEST(SaveAs, RenamesAsThePlainRuleDoesOnGeneratedDocuments) {
  for (unsigned seed = 1; seed <= 20 && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    DocumentSession session;
    writeRandomDocument(session.files, random,
                        seed % 2 == 0 ? Damage::none() : Damage::some(random));
    // Over itself the old files keep their numbers.
    const std::string target =
        seed % 3 == 0 ? session.files.documentPath() : session.folder / "new/copy.xml";
    fs::create_directory(session.folder / "new");
    try {
      EXPECT_EQ(session.open(session.files.documentPath()), "");
    } catch (const RunTimeError&) {
      continue;
    }
    renamePlainly(*session.document(), target);
    const Texts plain = statesBelow(*session.document());
    session.close();
    ASSERT_EQ(session.open(session.files.documentPath()), "");
    const Texts before = statesBelow(*session.document());
    // Where segments follow one another in a ring there is no order, and all is as it was.
    const bool saved = session.document()->bSaveAs(target);
    EXPECT_EQ(test::firstDifference(statesBelow(*session.document()), saved ? plain : before), "");
    EXPECT_TRUE(session.document()->collObjects().checkConsistency());
    EXPECT_TRUE(session.document()->collObjects().references().checkConsistency());
    EXPECT_TRUE(session.document()->io()->scans().checkConsistency());
  }
}

TEST(SaveAs, GivesTheWholeLayoutAndLeavesTheOldFilesAlone) {
  DocumentSession session;
  session.files.smallLadder();
  session.files.segment("video2", "video1", 0, 1000);
  ASSERT_EQ(session.open(session.files.documentPath()), "");
  const auto before = session.folder.snapshot();
  const std::string target = session.folder / "other place/copy.xml";
  // What somebody gave to a folder that he has made stays.
  const std::string folder = session.folder / "other place/copy_files";
  fs::create_directories(folder);
  fs::permissions(folder, fs::perms::owner_all);
  EXPECT_TRUE(session.document()->bSaveAs(target));
  EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all);
  session.close();
  auto after = session.folder.snapshot();
  std::vector<std::string> made;
  for (const auto& [name, bytes] : after) {
    if (before.contains(name)) {
      EXPECT_EQ(bytes, before.at(name)) << name;
    } else {
      made.push_back(name);
    }
  }
  const std::string data = "other place/copy_files/copy_";
  EXPECT_EQ(made, (Texts{"other place/copy.xml", data + "audio1.xml", data + "media1.xml",
                         data + "storage1.xml", data + "transcript1.xml", data + "version1.xml",
                         data + "video1.xml", data + "video2.xml"}));
  session.takeShown();
  fs::remove_all(session.folder / "film_files");
  EXPECT_EQ(session.open(target), "");
  EXPECT_EQ(session.document()->collObjects().Count(), 10U);  // two of them are no files
  EXPECT_EQ(after.at("other place/copy.xml").find("film"), std::string::npos);
}

/// A document with a change, a new object and a segment.
void openEdited(DocumentSession& session) {
  session.files.smallLadder();
  session.files.segment("video2", "video1", 0, 1000);
  ASSERT_EQ(session.open(session.files.documentPath()), "");
  session.object("media1")->setStrTitle(std::string(900, 'x'));
  session.document()->AddChild("new");
  session.takeShown();  // the movie of the segment is missing
}

TEST(SaveAs, AFailedOneLeavesEveryNameAndChangeAndTheNextFindsAllObjects) {
  const rlim_t any = RLIM_INFINITY;
  const struct {
    const char* what;
    std::string inTheWay;  // a file, or a folder with a slash
    rlim_t largestFile;
    int goodSyncs;
    std::string shown;
  } cases[] = {
      {"no data folder", "copy_files", any, kAll, "Errore nella creazione della directory: ~..."},
      {"no room", "", 100, kAll, "File too large (~/copy_files/..."},
      {"no room for one object", "", 1000, kAll, "File too large (~/copy_files/copy_media1.xml)"},
      {"the document's own file", "copy.xml/", any, kAll, "Is a directory (~/copy.xml)"},
      {"a disk that fails", "", any, 0, "No space left on device (~/copy.xml)"},
      {"a disk that fails at the end", "", any, 1, "No space left on device (~/copy.xml)"},
  };
  for (const auto& one : cases) {
    for (const bool again : {false, true}) {
      SCOPED_TRACE(std::string(one.what) + (again ? ", Save As again" : ", Save"));
      DocumentSession session;
      openEdited(session);
      const Texts state = stateOf(*session.document());
      const auto files = session.folder.snapshot();
      const std::string copy = session.folder / "copy.xml";
      const std::string inTheWay = session.folder / one.inTheWay;
      if (one.inTheWay.ends_with('/')) fs::create_directory(inTheWay);
      if (one.inTheWay.ends_with('s')) session.folder.write(one.inTheWay, "");
      {
        const test::SizeLimit limit(one.largestFile);
        goodSyncs = one.goodSyncs;
        EXPECT_FALSE(session.document()->bSaveAs(copy));
        goodSyncs = kAll;
      }
      Texts shown = session.takeShown();
      shown.resize(1);  // a second box says that not all was saved
      EXPECT_TRUE(test::sameBoxes(shown, {"plain: " + one.shown}, session.folder.path()))
          << shown[0];
      EXPECT_EQ(test::firstDifference(stateOf(*session.document()), state), "");
      if (!one.inTheWay.empty()) fs::remove(inTheWay);
      // What a failing disk holds of a copy that was written to its end nobody knows, so it stays.
      const bool stays = one.goodSyncs == 1;
      EXPECT_EQ(session.folder.snapshot() == files, !stays);
      EXPECT_EQ(fs::exists(session.folder / "copy_files"), stays);

      EXPECT_TRUE(again ? session.document()->bSaveAs(copy) : session.document()->bSave());
      session.close();
      ASSERT_EQ(session.open(again ? copy : session.files.documentPath()), "");
      EXPECT_EQ(session.document()->collObjects().Count(), state.size());
      const ObjectRef media = session.document()->colChilds()[0]->colChilds()[0];
      EXPECT_EQ(media->strTitle().size(), 900U);
    }
  }
}

TEST(SaveAs, ASaveThatDoesNotReachTheDiskHasFailed) {
  DocumentSession session;
  openEdited(session);
  for (const char* title : {"with new files", "one file alone"}) {
    session.object("media1")->setStrTitle(title);
    const Texts state = stateOf(*session.document());
    goodSyncs = 0;
    EXPECT_FALSE(session.document()->bSave());
    goodSyncs = kAll;
    EXPECT_EQ(session.takeShown().size(), 2U);
    EXPECT_EQ(test::firstDifference(stateOf(*session.document()), state), "");
    EXPECT_TRUE(session.document()->bSave());
    EXPECT_TRUE(session.document()->collObjects().changedObjects().empty());
  }
}

TEST(SaveAs, WhatCameFromElsewhereIsNeitherOverwrittenNorDeleted) {
  DocumentSession session;
  openEdited(session);
  ObjectRef removed = session.object("version2");
  session.document()->AddChild("later");
  const std::string theirs = "<Version><VersionTitle>theirs</VersionTitle></Version>";
  session.files.writeRaw("film_version2.xml", theirs);
  session.files.writeRaw("film_version3.xml", theirs);
  fs::create_directory(session.files.path("version4"));
  fs::create_symlink(session.folder / "nowhere", session.files.path("version5"));
  session.document()->RemoveObject(removed);
  EXPECT_TRUE(session.document()->bSave());
  EXPECT_TRUE(session.takeShown().empty());
  fs::create_directories(session.folder / "copy_files/copy_version1.xml");
  fs::create_symlink(session.folder / "nowhere", session.folder / "copy_files/copy_media1.xml");
  EXPECT_TRUE(session.document()->bSaveAs(session.folder / "copy.xml"));
  EXPECT_TRUE(fs::exists(session.folder / "copy_files/copy_version2.xml"));
  EXPECT_FALSE(fs::exists(session.folder / "nowhere"));
  session.close();
  ASSERT_EQ(session.open(session.files.documentPath()), "");
  EXPECT_EQ(session.document()->colChilds().size(), 2U);
  EXPECT_EQ(session.object("version6")->strTitle(), "later");
  for (const char* name : {"version2", "version3"}) {
    EXPECT_EQ(session.folder.read(std::string("film_files/film_") + name + ".xml"), theirs);
  }
}

TEST(SaveAs, AFolderThatCannotBeListedIsToldOfAndRefusesACopy) {
  DocumentSession session;
  session.files.smallLadder();
  const auto before = session.folder.snapshot();
  const std::string folder = session.folder / "film_files";
  fs::permissions(folder, fs::perms::owner_write | fs::perms::owner_exec);
  {
    const test::OrdinaryPerson without;
    ASSERT_EQ(session.open(session.files.documentPath()), "");
  }
  fs::permissions(folder, fs::perms::owner_all);
  EXPECT_FALSE(session.document()->bSaveAs(session.folder / "copy.xml"));
  const std::string unlisted = folder + "/ cannot be listed (Permission denied): ";
  EXPECT_EQ(session.takeShown(),
            (Texts{"exclamation: " + unlisted + "the expressions in it are not opened.",
                   "plain: " + unlisted + "Save As would leave out the expressions in it."}));
  session.close();
  EXPECT_EQ(session.folder.snapshot(), before);
}

}  // namespace
}  // namespace velra
