// SPDX-License-Identifier: GPL-3.0-or-later

// What can be wrong with one object of a document: the box that tells of it, and what opens
// besides.
#include <gtest/gtest.h>

#include <filesystem>

#include "base/Text.h"
#include "schema/SEColl.h"
#include "store/IOManager.h"
#include "support/DocumentSession.h"
#include "support/ShownBoxes.h"
#include "support/SmallSchema.h"

namespace velra {
namespace {

using test::DocumentSession;
using test::ObjectText;
using Texts = std::vector<std::string>;

const Texts kLadder = {"version1", "media1", "storage1", "video1", "audio1", "transcript1"};
const Texts kExpressions = {"version1", "video1", "audio1", "transcript1"};

/// The schema without the declaration of a class.
std::string without(const std::string& className) {
  return replaceAll(test::kSmallSchema, "<xsd:element name=\"" + className + "\">",
                    "<xsd:element name=\"Other\">");
}

/// The schema with another type for the relation field of a class.
std::string withRelation(const std::string& field, const std::string& type) {
  const std::string start = "name=\"" + field + "\" type=\"";
  std::string schema = test::kSmallSchema;
  return schema.replace(schema.find(start + "SetOfGUIDs") + start.size(), 10, type);
}

std::string undeclared(const std::string& className) {
  return "The schema does not provide any definition of the type: " + className;
}

class ObjectFailures : public ::testing::Test {
 protected:
  ObjectFailures() { session_.files.smallLadder(); }

  void expectShown(const Texts& expected) {
    const Texts shown = session_.takeShown();
    EXPECT_TRUE(test::sameBoxes(shown, expected, session_.folder.path()))
        << ::testing::PrintToString(shown);
  }
  Texts loaded() const {
    Texts names;
    for (const std::string& name : kLadder) {
      if (session_.object(name)) names.push_back(name);
    }
    return names;
  }

  DocumentSession session_;
};

TEST_F(ObjectFailures, CostTheirMessageAndTheirBranch) {
  const std::string noSet =
      "plain: The fields which express relationships must be of SetOfGUIDs type";
  const std::string notTheClass = ": class name does not match xml instance";
  const std::string missing = "exclamation: Could not find the object: film_files/film_";
  const auto files = [this]() -> const test::DocumentFiles& { return session_.files; };
  const auto remove = [&](const char* name) { std::filesystem::remove(files().path(name)); };
  const struct {
    const char* what;
    std::function<void()> damage;
    Texts shown;
    Texts loaded;
  } cases[] = {
      {"nothing; a missing movie is not looked for", [] {}, {}, kLadder},
      {"children of a document that are a text",
       [&] { session_.useSchema(withRelation("ExpressedBy", "xsd:string")); },
       {noSet},
       {}},
      {"of a Version",
       [&] { session_.useSchema(withRelation("ManifestedBy", "xsd:string")); },
       {noSet},
       kExpressions},
      {"of a Media, a date",
       [&] { session_.useSchema(withRelation("AvailableAs", "xsd:date")); },
       {noSet},
       {"version1", "media1", "video1", "audio1", "transcript1"}},
      {"a missing Version", [&] { remove("version1"); }, {missing + "version1.xml"}, {}},
      {"one that is cut off",
       [&] { files().writeRaw("film_version1.xml", "<Version>"); },
       {"exclamation: XML Parser: Line 1: ..."},
       {}},
      {"a missing Media", [&] { remove("media1"); }, {missing + "media1.xml"}, kExpressions},
      {"a missing Storage",
       [&] { remove("storage1"); },
       {missing + "storage1.xml"},
       {"version1", "media1", "video1", "audio1", "transcript1"}},
      {"a file of another class",
       [&] { files().write("media1", ObjectText("Storage")); },
       {"exclamation: Media" + notTheClass},
       kExpressions},
      {"objects of other classes below a document, open already",
       [&] {
         files().document({"version1", "media1", "storage1"});
       },
       {"plain: Version" + notTheClass, "plain: Version" + notTheClass},
       kLadder},
      {"below a Version",
       [&] {
         files().version("version1", {"media1", "version1"});
       },
       {"plain: Media" + notTheClass},
       kLadder},
      {"below a Media",
       [&] {
         files().media("media1", {"storage1", "media1"});
       },
       {"plain: Storage" + notTheClass},
       kLadder},
      {"a class of the ladder that the schema lacks",
       [&] { session_.useSchema(without("Storage")); },
       {"exclamation: Error loading the schema: " + undeclared("Storage")},
       {"version1", "media1", "video1", "audio1", "transcript1"}},
      // Found by a search of the folder, which goes on.
      {"a class of expressions that it lacks",
       [&] { session_.useSchema(without("Audio")); },
       {"plain: Error loading the schema: " + undeclared("Audio")},
       {"version1", "media1", "storage1", "video1", "transcript1"}},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    session_.useSchema(test::kSmallSchema);
    session_.files.smallLadder();
    one.damage();
    const auto before = session_.folder.snapshot();
    EXPECT_EQ(session_.open(session_.files.documentPath()), "");
    expectShown(one.shown);
    EXPECT_EQ(loaded(), one.loaded);
    EXPECT_TRUE(session_.document()->bSave());
    session_.close();
    EXPECT_EQ(session_.folder.snapshot(), before);
  }
}

TEST_F(ObjectFailures, WhatCannotBeMadeIsNotAttached) {
  const auto ladder = [this](const char* name) { return as<LadderObject>(session_.object(name)); };
  const struct {
    const char* className;
    std::function<void()> make;
  } cases[] = {
      {"Version", [&] { session_.document()->AddChild("t"); }},
      {"Media", [&] { ladder("version1")->AddChild("t"); }},
      {"Storage", [&] { ladder("media1")->AddChild("t"); }},
      {"Video",
       [&] { session_.version("version1")->AddMainExpression("t", ObjectKind::Video, 0, 1); }},
      {"Transcript", [&] { session_.expression("transcript1")->AddSubExpression("t", 0, 1); }},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.className);
    session_.useSchema(test::kSmallSchema);
    EXPECT_EQ(session_.open(session_.files.documentPath()), "");
    const ExpressionRef video = session_.version("version1")->vdMainVideo();
    const std::size_t count = session_.document()->collObjects().Count();
    // Without its folder nothing of it is made, not even a place.
    const std::string folder = session_.folder / "film_files";
    std::filesystem::rename(folder, folder + ".aside");
    session_.folder.write("film_files", "in the way");
    one.make();
    expectShown({"plain: Errore nella creazione della directory: ~/film_files/ ()"});
    EXPECT_EQ(session_.version("version1")->vdMainVideo(), video);
    std::filesystem::remove(folder);
    std::filesystem::rename(folder + ".aside", folder);

    session_.useSchema(without(one.className));
    one.make();
    expectShown({"plain: " + undeclared(one.className)});
    EXPECT_EQ(session_.document()->collObjects().Count(), count);
    EXPECT_TRUE(session_.document()->collObjects().changedObjects().empty());
    // A main expression has its place already.
    EXPECT_EQ(session_.version("version1")->vdMainVideo() != video,
              std::string(one.className) == "Video");
    EXPECT_TRUE(session_.document()->bSave());
    session_.close();
  }
}

TEST_F(ObjectFailures, AnExpressionThatCannotBeReadHasNoWayUp) {
  session_.useSchema(without("Audio"));
  EXPECT_EQ(session_.open(session_.files.documentPath()), "");
  session_.takeShown();
  EXPECT_EQ(session_.document()->io()->strRetrieveAVDocGUIDFromGUID(session_.files.path("audio1")),
            "");
  expectShown({"exclamation: Error loading the schema: " + undeclared("Audio")});
}

TEST_F(ObjectFailures, FilesThatCannotBeDeletedAreListedWithTheLastReason) {
  IOManager io(session_.app);
  for (const char* name : {"gone1", "media1", "gone2", "media1"}) {
    io.RemoveGUID(session_.files.path(name));
  }
  const test::DocumentFiles& files = session_.files;
  EXPECT_EQ(io.strSync(), files.path("gone1") + " " + files.path("gone2") + " " +
                              files.path("media1") + ": No such file or directory");
  EXPECT_FALSE(std::filesystem::exists(files.path("media1")));
  EXPECT_EQ(io.strSync(), "");
}

}  // namespace
}  // namespace velra
