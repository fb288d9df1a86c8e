// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <ctime>
#include <variant>

#include "rescue/DocumentRescue.h"
#include "rescue/KeptWorkList.h"
#include "rescue/ProcessIdentity.h"
#include "rescue/RescueStore.h"
#include "rescue/RescueTables.h"
#include "rescue/RescueWriter.h"
#include "support/TemporaryFolder.h"

namespace velra {
namespace {

using test::TemporaryFolder;

const std::string kBytes("<a>\0\xff</a>", 9);

std::string goneProcess() {
  std::string identity = processIdentity();
  return identity.substr(0, identity.rfind(' ')) + " 1";
}

class RescueStoreTest : public ::testing::Test {
 protected:
  KeptObject object(const std::string& name, bool removed = false) const {
    return {folder_ / name, "Video", "Title of " + name, removed ? "" : kBytes, removed, {}};
  }

  const TemporaryFolder folder_;
  RescueStore store_{folder_ / "rescue.sqlite"};
};

TEST_F(RescueStoreTest, WhatIsKeptComesBackByteForByte) {
  const SessionId session = store_.begin("/films/f.xml", processIdentity());
  KeptObject first = object("one");
  first.stamp = keptStamp(folder_.write("file", "x"));
  store_.keep(session, {first, object("two")});
  store_.keep(session, {object("two", true)});
  store_.keep(session, {object("three")}, {});
  store_.keep(session, {}, {object("three").path});
  store_.keep(store_.begin("/films/f.xml", processIdentity()), {}, {first.path});
  store_.end(session, SessionEnd::Error);

  RescueStore other(folder_ / "rescue.sqlite");  // as another program sees it
  const auto works = keptWork(other, "/films/f.xml");
  ASSERT_EQ(works.size(), 1U);
  EXPECT_TRUE(works[0].end == SessionEnd::Error);
  EXPECT_LE(std::time(nullptr) - works[0].changed, 60);
  EXPECT_EQ(works[0].titles, (std::vector<std::string>{"Title of one", "Title of two"}));
  const auto objects = keptObjects(other, works[0].session);
  ASSERT_EQ(objects.size(), 2U);
  EXPECT_EQ(objects[0].bytes, kBytes);
  EXPECT_EQ(objects[0].stamp, first.stamp);
  EXPECT_FALSE(objects[1].stamp.exists);
  EXPECT_TRUE(objects[1].removed);
  EXPECT_TRUE(keptWork(other, "/films/g.xml").empty());
}

TEST_F(RescueStoreTest, ASaveEmptiesWhatItSavedAndAFailedOneDoesNot) {
  SavePlans plans = store_.plans();
  const SessionId session = store_.begin("f", processIdentity());
  const auto open = [&] { return std::get<SavePlan>(plans.open(session)); };
  store_.keep(session, {object("one")});
  const SavePlan plan{{{"one", kBytes, {}, "blocks"}}, {{"/d/gone", {}}}};
  plans.planSave(session, plan);
  plans.abandon(session);
  EXPECT_EQ(plans.open(session).index(), 0U);
  EXPECT_EQ(keptWork(store_, "").size(), 1U);

  plans.planCopy(session,
                 {{"copy", kBytes, {}, {}}, {{"/d/made", "/from"}, {"/e/made", ""}}, "/d/h/"});
  const auto copy = std::get<CopyPlan>(plans.open(session));
  EXPECT_EQ(copy.document.path + copy.made.at(0).path + copy.made.at(0).movedFrom,
            "copy/d/made/from");
  EXPECT_EQ(copy.made.back().path + copy.made.back().movedFrom + copy.hidden, "/e/made/d/h/");
  plans.planSave(session, plan);
  EXPECT_EQ(open().files.size(), 1U) << "one whose end was not written is out of date";
  EXPECT_EQ(open().files[0].bytes + open().files[0].blocks, kBytes + "blocks");
  plans.finishSave(session);
  EXPECT_TRUE(keptWork(store_, "").empty());
  EXPECT_TRUE(open().files.empty());
  const auto due = [&] {
    std::string all;
    for (const PlannedRemoval& removal : plans.dueRemovals(session)) {
      all += removal.path + " " + std::to_string(removal.stamp.modified) + ";";
    }
    return all;
  };
  const SavePlan later{{}, {{"/d/more", {1, 2, 0, 3, true}}, {"/e/more", {}}}, true, {"/d/gone"}};
  plans.planSave(session, later);
  plans.abandon(session);
  EXPECT_EQ(due(), "/d/gone 0;");
  plans.planSave(session, later);
  plans.finishSave(session);
  EXPECT_EQ(due(), "/d/more 2;/e/more 0;");
  plans.planSave(session, {{}, {{"/e/more", {1, 7, 0, 3, true}}}, true, {}});
  plans.finishSave(session);
  EXPECT_EQ(due(), "/d/more 2;/e/more 7;") << "what was told last counts";
  plans.planSave(session, plan);
  plans.finishSave(session);
  EXPECT_EQ(due(), "/d/gone 0;") << "a plan that tells of all";
  plans.removalsDone(session);
  plans.planSave(session, plan);
  store_.end(session, SessionEnd::Error);
  EXPECT_EQ(open().files.size(), 1U) << "an error may have come amid the files";
  store_.end(session, SessionEnd::Left);
  EXPECT_TRUE(interruptedSaves(store_, "f").empty());
}

TEST_F(RescueStoreTest, WhatIsOldOrTooMuchGoesUnlessItsProgramRuns) {
  const auto keepOne = [&](const std::string& document, const std::string& process) {
    store_.keep(store_.begin(document, process), {object(document)});
  };
  const auto documents = [&] {
    std::string all;
    for (const KeptWork& work : keptWork(store_, "")) all += work.document;
    return all;
  };
  keepOne("a", goneProcess());
  const SessionId cutOff = store_.begin("e", goneProcess());
  store_.plans().planSave(cutOff, {{{"one", kBytes, {}, {}}}, {}});
  keepOne("b", processIdentity());
  keepOne("c", goneProcess());
  keepOne("d", "another-machine boot 1 1");
  pruneKeptWork(store_, std::time(nullptr) - 60, static_cast<std::int64_t>(kBytes.size()));
  EXPECT_EQ(documents(), "dcb") << "the oldest of those that count is too much";
  pruneKeptWork(store_, std::time(nullptr) + 60, 1000);
  EXPECT_EQ(documents(), "db");
  EXPECT_NE(store_.plans().open(cutOff).index(), 0U)
      << "a save that was cut off can always be finished";
}

TEST_F(RescueStoreTest, APersonSeesWhatCanBeBroughtBackAndDropsEachForItself) {
  EXPECT_FALSE(hasRestorableWork(store_));
  const SessionId open = store_.begin("open", processIdentity());
  store_.keep(open, {object("one")});
  EXPECT_FALSE(hasRestorableWork(store_)) << "what this program works on";
  store_.keepReplaced(open, "/films/film_video1.xml", kBytes);
  EXPECT_TRUE(hasRestorableWork(store_));
  const SessionId killed = store_.begin("killed", goneProcess());
  store_.keep(killed, {object("two")});
  store_.plans().planSave(killed, {{{"two", kBytes, {}, {}}}, {}});
  store_.keep(store_.begin("elsewhere", "another-machine boot 1 1"), {object("three")});

  std::string seen;
  for (const KeptWork& work : restorableWork(store_, "open")) {
    seen += work.document + " " + work.titles.front() + " " +
            std::to_string(static_cast<int>(fateOf(work))) + "; ";
    EXPECT_EQ(keptObjects(store_, work).front().bytes, kBytes);
    dropKeptWork(store_, work);
  }
  EXPECT_EQ(seen, "open film_video1.xml 4; elsewhere Title of three 3; killed Title of two 2; ");
  EXPECT_FALSE(hasRestorableWork(store_));
  EXPECT_NE(store_.plans().open(killed).index(), 0U)
      << "a save that was cut off is no work to be dropped";
  EXPECT_EQ(keptObjects(store_, open).size(), 1U);
}

TEST(RescueWriter, GoesOnWithoutAStoreAndPutsADamagedOneAside) {
  const TemporaryFolder folder;
  const std::string damaged = folder.write("state/rescue.sqlite", std::string(5000, 'x'));
  const std::string blocked = folder.write("file", "") + "/below/rescue.sqlite";
  for (const auto& [path, works] : {std::pair(damaged, true), std::pair(blocked, false)}) {
    RescueWriter writer(path);
    DocumentRescue rescue(writer, "f");
    const std::string outcome = rescue.plan(SavePlan{{{"one", kBytes, {}, {}}}, {}});
    EXPECT_EQ(outcome.empty(), works) << outcome;
    EXPECT_EQ(writer.failure(), outcome);
    rescue.keep({{"one", "Video", "", kBytes, false, {}}}, {});
  }
  EXPECT_EQ(folder.snapshot().count("state/rescue.sqlite"), 1U);
  RescueStore after(damaged);
  EXPECT_EQ(keptWork(after, "f").size(), 1U) << "kept by the writer before it went";
}

}  // namespace
}  // namespace velra
