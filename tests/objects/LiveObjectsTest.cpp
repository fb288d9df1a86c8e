// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "objects/MediaObject.h"
#include "platform/files/Files.h"
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

TEST(LiveObjects, ClosingReleasesObjectsFormsAndStoreAndDeletesWhatWasRemoved) {
  DocumentSession session;
  session.files.smallLadder();
  session.files.segment("video2", "video1", 0, 1000);
  ASSERT_EQ(session.open(session.files.documentPath()), "");
  session.version("version1")->AddChild("DVD");
  session.expression("audio1")->AddSubExpression("part", 1, 2);
  std::vector<std::weak_ptr<RegisteredObject>> mediaObjects;  // these no factory makes
  for (const auto& [number, object] : session.document()->collObjects().sequence()) {
    if (object->kind() == ObjectKind::MediaObject) mediaObjects.push_back(object);
  }
  EXPECT_EQ(mediaObjects.size(), 2U);
  const std::weak_ptr<IOManager> io = session.document()->io();

  ObjectRef removed = session.object("transcript1");
  session.document()->RemoveObject(removed);
  EXPECT_EQ(removed, nullptr);
  EXPECT_TRUE(session.document()->bSave());
  EXPECT_TRUE(bFileExists(session.files.path("transcript1")));
  session.close();

  EXPECT_TRUE(io.expired());
  EXPECT_EQ(living(session.factory.objects), 0);
  EXPECT_EQ(living(session.factory.forms), 0);
  EXPECT_EQ(living(mediaObjects), 0);
  EXPECT_FALSE(bFileExists(session.files.path("transcript1")));
  EXPECT_TRUE(bFileExists(session.files.path("media2")));
}

TEST(IOManager, FilesThatCannotBeDeletedAreListedWithTheLastReason) {
  DocumentSession session;
  session.files.smallLadder();
  IOManager io(session.app);
  for (const char* name : {"gone1", "media1", "gone2", "media1"}) {
    io.RemoveGUID(session.files.path(name));
  }
  const test::DocumentFiles& files = session.files;
  EXPECT_EQ(io.strSync(), files.path("gone1") + " " + files.path("gone2") + " " +
                              files.path("media1") + ": No such file or directory");
  EXPECT_FALSE(std::filesystem::exists(files.path("media1")));
  EXPECT_EQ(io.strSync(), "");
}

}  // namespace
}  // namespace velra
