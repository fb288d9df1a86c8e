// SPDX-License-Identifier: GPL-3.0-or-later

// What an opening makes of its files: links, registrations, boxes and their order.
#include <gtest/gtest.h>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/files/Files.h"
#include "store/IOManager.h"
#include "support/DocumentSession.h"
#include "support/RandomDocument.h"

namespace velra {
namespace {

using test::DocumentFiles;
using test::DocumentSession;
using test::ObjectText;
using Texts = std::vector<std::string>;

template <class Object>
std::string guidOf(const std::shared_ptr<Object>& object) {
  return object ? object->strGUID() : "nothing";
}

std::string described(const RegisteredObject& object) {
  std::string text = object.className() + " " + object.strGUID() + ":";
  const auto* parent = as<const DescribedObject>(&object);
  for (const ObjectRef& child : parent ? parent->colChilds() : ObjectList())
    text += " " + guidOf(child);
  const auto* expression = as<const Expression>(&object);
  if (!expression) return text;
  for (const auto& segment : expression->colSubExpressions()) text += " " + guidOf(segment);
  return text + " next " + guidOf(expression->objFollowedBy()) + " in " +
         guidOf(expression->objMainExpr()) + " of " + guidOf(expression->verVersion());
}

/// Opens the document of a session and tells in lines what came of it: a failure, the boxes, the
/// texts of the status bar, and each object in order of registration. Paths are short: "audio1.xml"
/// is the file of that object in the data folder.
std::string opened(DocumentSession& session) {
  std::string text;
  try {
    text = session.open(session.files.documentPath());
  } catch (const RunTimeError& error) {
    text = "run-time error " + std::to_string(error.number());
  }
  if (!text.empty()) text += "\n";
  for (const std::string& box : session.takeShown()) text += box + "\n";
  for (const std::string& status : session.window.takeStatusTexts()) text += status + "\n";
  ObjectRegistry& objects = session.document()->collObjects();
  for (const auto& [number, object] : objects.sequence()) text += described(*object) + "\n";
  EXPECT_TRUE(objects.checkConsistency());
  EXPECT_TRUE(!session.document()->io() || session.document()->io()->scans().checkConsistency());
  return replaceAll(replaceAll(text, session.folder.path() + "/", ""), "film_files/film_", "");
}

const struct {
  std::string what;
  void (*write)(const DocumentFiles&);
} kCases[] = {
    {"two Versions with a Media in common, and segments in segments",
     [](const DocumentFiles& files) {
       files.document({"version2", "version1"});
       files.version("version2", {"media2", "media1"});
       files.media("media2", {"storage2", "storage1"});
       files.storage("storage2", "another movie.mpg");
       files.mainExpression("video2", "version2");
       files.segment("video3", "video1", 0, 1000, "video4");
       files.segment("video4", "video1", 1000, 2000);
       files.segment("video5", "video3", 0, 500);
       files.segment("audio2", "audio1", 500, 600);
       files.segment("audio3", "audio1", 0, 100, "audio2");
     }},
    {"what is missing, broken or of another class",
     [](const DocumentFiles& files) {
       files.document({"version1", "version2", "version1"});
       files.version("version1", {"media1", "media2"});
       files.write("media2", ObjectText("Storage"));
       files.writeRaw("film_audio2.xml", "<Audio><Title>cut off");
       files.writeRaw("zzz.xml", "<Video><VersionGUID>somewhere else</VersionGUID></Video>");
     }},
    {"a time that is no number",
     [](const DocumentFiles& files) {
       files.write("audio2", ObjectText("Audio")
                                 .text("PartOfAudio", files.id("audio1"))
                                 .raw("<Time start='soon' end='1'/>"));
     }},
    {"identifiers by a detour",
     [](const DocumentFiles& files) {
       files.write("film",
                   ObjectText("AVDocument")
                       .guids("ExpressedBy", {"film_files/.././film_files//film_version1.xml"}));
     }},
    {"a movie with the path of an object",
     [](const DocumentFiles& files) { files.storage("storage1", files.id("video1")); }},
    {"a Version listed by name of another class",
     [](const DocumentFiles& files) {
       files.document({"version1", "storage1"});
     }},
    {"a Version that is a Media, met after a search",
     [](const DocumentFiles& files) {
       files.document({"version1", "media2"});
       files.media("media2", {});
     }},
    {"an expression in front of others by its name, and one that is a part of itself",
     [](const DocumentFiles& files) {
       files.writeRaw("aaa.xml",
                      ObjectText("Video").text("VersionGUID", files.id("version1")).xml());
       files.write("audio2", ObjectText("Audio")
                                 .text("VersionGUID", files.id("version1"))
                                 .text("PartOfAudio", files.id("audio2")));
     }},
    {"a video that is open before its parent, behind one that is not",
     [](const DocumentFiles& files) {
       files.segment("video00", "video1", 0, 1);
       files.write("video01", ObjectText("Video")
                                  .text("VersionGUID", files.id("version1"))
                                  .text("PartOfVideo", files.id("video1")));
     }},
    {"two main videos of one Version",
     [](const DocumentFiles& files) { files.mainExpression("video2", "version1"); }},
    {"a segment that claims its Version, met after its parent",
     [](const DocumentFiles& files) {
       files.write("video2", ObjectText("Video")
                                 .text("VersionGUID", files.id("version1"))
                                 .span("Time", 0, 1)
                                 .text("PartOfVideo", files.id("video1")));
     }},
    {"the same of an audio, met before its parent",
     [](const DocumentFiles& files) {
       files.write("audio0", ObjectText("Audio")
                                 .text("VersionGUID", files.id("version1"))
                                 .text("PartOfAudio", files.id("audio1")));
     }},
    {"a file that breaks every search",
     [](const DocumentFiles& files) {
       files.writeRaw("broken.xml", "<Video>");
       files.segment("video2", "video1", 0, 1);
     }},
    {"two followers that name one sibling, and one that names itself",
     [](const DocumentFiles& files) {
       files.segment("audio2", "audio1", 0, 1, "audio4");
       files.segment("audio3", "audio1", 1, 2, "audio4");
       files.segment("audio4", "audio1", 2, 3, "audio4");
     }},
};

TEST(Opening, GivesWhatTheFilesSay) {
  const std::string kept = readFile(VELRA_SOURCE_DIR "/tests/data/openings.txt").bytes;
  std::string now;
  for (const auto& one : kCases) {
    DocumentSession session;
    session.files.smallLadder();
    one.write(session.files);
    now += "== " + one.what + "\n" + opened(session) + "\n";
  }
  EXPECT_EQ(now, kept);
}

// The indexes go by absolute paths, whatever the files say and however they are damaged.
TEST(Opening, IsTheSameWithRelativeAndAbsoluteIdentifiers) {
  for (unsigned seed = 1; seed <= 40; ++seed) {
    SCOPED_TRACE(seed);
    std::string outcomes[2];
    for (const auto kind :
         {DocumentFiles::Identifiers::Relative, DocumentFiles::Identifiers::Absolute}) {
      std::mt19937 random(seed);
      DocumentSession session;
      const DocumentFiles files(session.folder, kind);
      writeRandomDocument(files, random,
                          seed % 5 == 0 ? test::Damage::none() : test::Damage::some(random));
      outcomes[static_cast<int>(kind)] = opened(session);
    }
    ASSERT_EQ(outcomes[0], outcomes[1]);
  }
}

// What was read once answers until the file changes.
TEST(Opening, ASearchAfterwardsSeesWhatOthersHaveChanged) {
  DocumentSession session;
  session.files.smallLadder();
  session.files.writeRaw("other.XML", "<Audio><Title>of somebody else</Title></Audio>");
  ASSERT_EQ(session.open(session.files.documentPath()), "");
  const auto audio = session.version("version1")->auMainAudio();
  ASSERT_TRUE(audio && audio->colSubExpressions().empty());
  session.files.segment("audio2", "audio1", 0, 1000);
  session.files.writeRaw(
      "other.XML", "<Audio><PartOfAudio>" + session.files.id("audio1") + "</PartOfAudio></Audio>");
  Texts found;
  for (const auto& segment : session.document()->io()->colScanForExpressions(audio)) {
    found.push_back(strFileName(segment->strGUID()));
  }
  EXPECT_EQ(found, (Texts{"film_audio2.xml", "other.XML"}));
  EXPECT_TRUE(session.document()->io()->scans().checkConsistency());
}

}  // namespace
}  // namespace velra
