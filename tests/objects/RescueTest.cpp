// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <map>
#include <random>
#include <set>

#include "base/Paths.h"
#include "platform/files/Files.h"
#include "rescue/KeptWorkList.h"
#include "rescue/RescueStore.h"
#include "rescue/RescueWriter.h"
#include "store/IOManager.h"
#include "support/DocumentSession.h"

namespace velra {
namespace {

using test::DocumentSession;

constexpr int kVersions = 20;

void writeDocument(DocumentSession& session) {
  std::vector<std::string> names;
  for (int i = 1; i <= kVersions; ++i) names.push_back("version" + std::to_string(i));
  session.files.document(names);
  for (const std::string& name : names) session.files.version(name, {});
}

using Work = void (*)(DocumentSession& session);

// Has a program work on the document until it is killed.
void workAndDie(DocumentSession& session, const std::string& store, Work work, int milliseconds) {
  const pid_t child = ::fork();
  if (child == 0) {
    RescueWriter writer(store);
    session.app.rescue = &writer;
    session.open(session.files.documentPath());
    work(session);
    ::raise(SIGKILL);
  }
  ::usleep(static_cast<useconds_t>(1000 * milliseconds));
  if (milliseconds > 0) ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
}

// Gives all objects one title and saves.
void saveAs(DocumentSession& session, const std::string& title) {
  for (const ObjectRef& object : session.document()->collObjects().described()) {
    object->setStrTitle(title);
  }
  session.document()->bSave();
}

[[noreturn]] void saveForEver(DocumentSession& session) {
  for (char letter = 'a';; letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1)) {
    saveAs(session, std::string(letter % 2 == 0 ? 30 : 40'000, letter));
  }
}

TEST(CutOffSave, TheNextOpeningFindsAllOfItOrNone) {
  DocumentSession session;
  writeDocument(session);
  session.open(session.files.documentPath());
  saveAs(session, "a");
  session.close();
  const std::string store = session.folder / "state/rescue.sqlite";
  for (int i = 0; i < 10; ++i) {
    workAndDie(session, store, saveForEver, 150 + 7 * i);
    RescueWriter writer(store);
    session.app.rescue = &writer;
    ASSERT_EQ(session.open(session.files.documentPath()), "") << i;
    const std::string title = session.document()->strTitle();
    EXPECT_EQ(title.find_first_not_of(title[0]), std::string::npos) << i;
    for (const ObjectRef& object : session.document()->collObjects().described()) {
      EXPECT_EQ(object->strTitle(), title) << i << ' ' << object->strGUID();
    }
    session.close();
  }
  EXPECT_EQ(session.takeShown(), std::vector<std::string>{});
}

[[noreturn]] void copyForEver(DocumentSession& session) {
  for (int i = 0;; ++i) {
    session.document()->bSaveAs(session.folder / ("copy" + std::to_string(i) + ".xml"));
  }
}

TEST(CutOffSave, ACopyIsThereWholeOrNotAtAll) {
  for (int i = 0; i < 10; ++i) {
    DocumentSession session;
    writeDocument(session);
    const std::string store = session.folder / "state/rescue.sqlite";
    workAndDie(session, store, copyForEver, 150 + 7 * i);
    RescueWriter writer(store);
    session.app.rescue = &writer;
    ASSERT_EQ(session.open(session.files.documentPath()), "");
    std::map<std::string, int> files;
    for (const auto& [name, bytes] : session.folder.snapshot()) {
      if (name.starts_with("copy")) ++files[name.substr(0, name.find_first_of("._"))];
    }
    for (const auto& [copy, count] : files) EXPECT_EQ(count, kVersions + 1) << copy;
    session.close();
    session.app.rescue = nullptr;
  }
}

TEST(CutOffSave, WhatASaveRemovedGoesThoughTheProgramDiesBeforeTheDocumentIsClosed) {
  DocumentSession session;
  writeDocument(session);
  const std::string store = session.folder / "state/rescue.sqlite";
  const auto removeAndSave = [](DocumentSession& one) {
    ObjectRef removed = one.object("version1");
    one.document()->RemoveObject(removed);
    one.document()->bSave();
  };
  workAndDie(session, store, removeAndSave, 0);
  EXPECT_TRUE(bFileExists(session.files.path("version1")));

  RescueWriter writer(store);
  session.app.rescue = &writer;
  ASSERT_EQ(session.open(session.files.documentPath()), "");
  EXPECT_FALSE(bFileExists(session.files.path("version1")));
  EXPECT_EQ(session.document()->collObjects().Count(), std::size_t{kVersions});
  session.close();
  writer.finish(std::chrono::seconds(10));
  RescueStore after(store);
  EXPECT_TRUE(interruptedSaves(after, "").empty());
}

// The paths that go by the store when the program dies now.
std::set<std::string> dueInStore(RescueWriter& writer) {
  std::set<std::string> due;
  writer.run([&](RescueStore& store) {
    for (const KeptWork& work : interruptedSaves(store, "")) {
      for (const auto& removal : store.plans().dueRemovals(work.session)) due.insert(removal.path);
    }
  });
  return due;
}

// A folder in the place of the document fails it.
bool saveInVain(DocumentSession& session) {
  const std::string path = session.files.documentPath();
  std::filesystem::rename(path, path + ".away");
  std::filesystem::create_directory(path);
  const bool saved = session.document()->bSave();
  std::filesystem::remove(path);
  std::filesystem::rename(path + ".away", path);
  session.takeShown();
  return saved;
}

TEST(RemovedFiles, AreListedAndPlannedAsIfEachSaveLookedAtAllOfThem) {
  DocumentSession session;
  writeDocument(session);
  RescueWriter writer(session.folder / "state/rescue.sqlite");
  session.app.rescue = &writer;
  ASSERT_EQ(session.open(session.files.documentPath()), "");
  AVDocument& document = *session.document();
  std::mt19937 random(1);
  const auto oneOf = [&](const auto& list) {
    return list[std::uniform_int_distribution<std::size_t>(0, list.size() - 1)(random)];
  };
  std::vector<std::string> listed;  // by the plain rule
  for (int round = 0; round < 60 && !HasFailure(); ++round) {
    SCOPED_TRACE(round);
    ObjectRef version = oneOf(document.colChilds());
    const auto& removed = document.colObjRemoved();
    if (round % 3 == 1 && !removed.empty()) version->setStrGUID(oneOf(removed));
    if (round % 4 == 0 && document.colChilds().size() > 2) document.RemoveObject(version);
    if (round % 8 == 3) document.AddChild("new");
    document.setStrTitle(std::to_string(round));
    if (round % 5 == 4 && round % 8 != 3) {
      EXPECT_FALSE(saveInVain(session));
    } else {
      EXPECT_TRUE(document.bSave());
      listed.insert(listed.end(), removed.begin(), removed.end());
      std::erase_if(listed, [&](const std::string& guid) {
        return document.collObjects().find(guid) != nullptr;
      });
    }
    EXPECT_EQ(document.io()->colGUIDToRemove(), listed);
    std::set<std::string> paths;
    for (const std::string& guid : listed) paths.insert(strAbsolutePath(guid));
    EXPECT_EQ(dueInStore(writer), paths);
  }
  EXPECT_FALSE(listed.empty());
  session.close();
  session.app.rescue = nullptr;
}

TEST(UnsavedWork, IsKeptAsASaveWouldWriteItUntilItIsSaved) {
  DocumentSession session;
  writeDocument(session);
  const std::string path = session.folder / "state/rescue.sqlite";
  RescueWriter writer(path);
  session.app.rescue = &writer;
  ASSERT_EQ(session.open(session.files.documentPath()), "");
  RescueStore store(path);
  const auto kept = [&] {
    while (session.document()->keepUnsavedWork()) {
    }
    EXPECT_TRUE(writer.finish(std::chrono::seconds(10)));
    std::map<std::string, KeptObject> objects;
    for (const KeptWork& work : keptWork(store, session.files.documentPath())) {
      for (const KeptObject& object : keptObjects(store, work.session))
        objects[object.path] = object;
    }
    return objects;
  };
  EXPECT_TRUE(kept().empty());

  session.object("version2")->setStrTitle("first");
  kept();
  session.object("version2")->setStrTitle("last");
  session.version("version3")->AddChild("DVD");
  ObjectRef removed = session.object("version4");
  session.document()->RemoveObject(removed);
  const auto objects = kept();
  EXPECT_EQ(objects.size(), 5U)
      << "a title, a child and its parent, what was removed, the document";
  EXPECT_TRUE(objects.at(session.files.path("version4")).removed);
  ASSERT_TRUE(session.document()->bSave());
  for (const auto& [file, object] : objects) {
    EXPECT_TRUE(object.removed || readFile(file).bytes == object.bytes) << file;
  }
  EXPECT_TRUE(kept().empty());

  session.object("version3")->setStrTitle("unsaved");
  kept();
  session.close();
  writer.finish(std::chrono::seconds(10));
  ASSERT_EQ(keptWork(store, "").size(), 1U);
  EXPECT_TRUE(keptWork(store, "")[0].end == SessionEnd::Left);
  EXPECT_EQ(session.open(session.files.documentPath()), "");
  EXPECT_NE(session.window.strStatusBarText().find("is kept"), std::string::npos);
  session.close();
  session.app.rescue = nullptr;  // the session's end comes after the writer's
}

}  // namespace
}  // namespace velra
