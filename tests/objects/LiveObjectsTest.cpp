#include <gtest/gtest.h>

#include <algorithm>

#include "base/RunTimeError.h"
#include "objects/MediaObject.h"
#include "platform/Files.h"
#include "schema/SEColl.h"
#include "store/IOManager.h"
#include "support/DocumentSession.h"

namespace velra {
namespace {

using test::DocumentSession;

template <class Pointers>
long living(const Pointers& pointers) {
  return std::count_if(pointers.begin(), pointers.end(),
                       [](const auto& pointer) { return !pointer.expired(); });
}

/// Everything that a session has made, and the movies and pictures that its objects have made.
class LiveObjects : public ::testing::Test {
 protected:
  void noteMediaObjects() {
    for (const auto& [number, object] : session_.document()->collObjects().sequence()) {
      if (object->className() == "MediaObject") mediaObjects_.push_back(object);
    }
  }
  void expectNothingLives() {
    EXPECT_EQ(living(session_.factory.objects), 0);
    EXPECT_EQ(living(session_.factory.forms), 0);
    EXPECT_EQ(living(mediaObjects_), 0);
  }

  DocumentSession session_;
  std::vector<std::weak_ptr<DescribedObject>> mediaObjects_;
};

TEST_F(LiveObjects, ClosingReleasesObjectsFormsAndStoreAndDeletesWhatWasRemoved) {
  session_.files.smallLadder();
  session_.files.segment("video2", "video1", 0, 1000);
  ASSERT_EQ(session_.open(session_.files.documentPath()), "");
  session_.version("version1")->AddChild("DVD");
  session_.expression("audio1")->AddSubExpression("part", 1, 2);
  noteMediaObjects();
  EXPECT_EQ(mediaObjects_.size(), 2U);
  const std::weak_ptr<IOManager> io = session_.document()->io();

  ObjectRef removed = session_.object("transcript1");
  session_.document()->RemoveObject(removed);
  EXPECT_EQ(removed, nullptr);
  EXPECT_TRUE(session_.document()->bSave());
  EXPECT_TRUE(bFileExists(session_.files.path("transcript1")));
  session_.close();

  EXPECT_TRUE(io.expired());
  expectNothingLives();
  EXPECT_FALSE(bFileExists(session_.files.path("transcript1")));
  EXPECT_TRUE(bFileExists(session_.files.path("media2")));
}

TEST_F(LiveObjects, FailedOpeningsLeaveNothing) {
  session_.files.smallLadder();
  const std::string document = session_.files.documentPath();
  const struct {
    const char* what;
    std::function<void()> damage;
    std::string path;
  } cases[] = {
      {"missing", [] {}, session_.folder / "nowhere.xml"},
      {"of another class", [] {}, session_.files.path("version1")},
      {"child of another class",
       [&] { session_.files.write("version1", test::ObjectText("Media")); }, document},
      {"two movies of one path",
       [&] {
         session_.files.smallLadder();
         session_.files.media("media1", {"storage1", "storage1"});
       },
       document},
      {"a time that is no number",
       [&] {
         session_.files.smallLadder();
         session_.files.write("version1", test::ObjectText("Version").raw(
                                              "<Duration start='soon' end='1' reasons='0'/>"));
       },
       document},
      {"ring of segments",
       [&] {
         session_.files.smallLadder();
         session_.files.write("video1", test::ObjectText("Video")
                                            .text("VersionGUID", session_.files.id("version1"))
                                            .text("PartOfVideo", session_.files.id("video2")));
         session_.files.segment("video2", "video1", 0, 1);
       },
       document},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    one.damage();
    const auto before = session_.folder.snapshot();
    try {
      session_.open(one.path);
    } catch (const RunTimeError&) {
      // Some of these end in a run-time error, as the file commands expect.
    }
    noteMediaObjects();
    session_.close();
    expectNothingLives();
    EXPECT_EQ(session_.folder.snapshot(), before);
  }
}

}  // namespace
}  // namespace velra
