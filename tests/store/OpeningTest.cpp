// The searches and look-ups of an opening, compared with the plain rule on generated documents.
#include <gtest/gtest.h>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "store/IOManager.h"
#include "store/PlainOpening.h"
#include "support/DocumentSession.h"
#include "support/FirstDifference.h"
#include "support/RandomDocument.h"

namespace velra {
namespace {

using test::Damage;
using test::DocumentFiles;
using test::DocumentSession;
using test::firstDifference;
using test::PlainObject;
using test::PlainOpening;
using Texts = std::vector<std::string>;

template <class Object>
std::string guidOf(const std::shared_ptr<Object>& object) {
  return object ? object->strGUID() : "nothing";
}
std::string guidOf(const PlainObject* object) {
  return object ? object->guid : "nothing";
}

Texts described(const PlainOpening& opening) {
  Texts texts;
  for (const PlainObject* object : opening.registry) {
    std::string text = object->className + " " + object->guid + ":";
    for (const PlainObject* child : object->children) text += " " + guidOf(child);
    for (const PlainObject* segment : object->segments) text += " " + guidOf(segment);
    if (isExpressionClass(object->className)) {
      text += " next " + guidOf(object->next) + " in " + guidOf(object->mainExpr) + " of " +
              guidOf(object->version);
    }
    texts.push_back(text);
  }
  return texts;
}

Texts described(AVDocument& document) {
  Texts texts;
  for (const auto& [number, object] : document.collObjects().sequence()) {
    std::string text = object->className() + " " + object->strGUID() + ":";
    for (const ObjectRef& child : object->colChilds()) text += " " + guidOf(child);
    if (const auto* expression = dynamic_cast<const Expression*>(object.get())) {
      for (const auto& segment : expression->colSubExpressions()) text += " " + guidOf(segment);
      text += " next " + guidOf(expression->objFollowedBy()) + " in " +
              guidOf(expression->objMainExpr()) + " of " + guidOf(expression->verVersion());
    }
    texts.push_back(text);
  }
  return texts;
}

/// A message, or the number of the run-time error that the opening ends in.
template <class Opening>
std::string outcome(const Opening& open) {
  try {
    return open();
  } catch (const RunTimeError& error) {
    return "run-time error " + std::to_string(error.number());
  }
}

void compareWithPlainRule(DocumentSession& session, const std::string& path) {
  const std::string ours = outcome([&] { return session.open(path); });
  PlainOpening plain(session.app.messages);
  EXPECT_EQ(ours, outcome([&] { return plain.open(path); }));
  EXPECT_EQ(firstDifference(session.takeShown(), plain.shown), "");
  EXPECT_EQ(firstDifference(session.window.takeStatusTexts(), plain.statusTexts), "");
  EXPECT_EQ(firstDifference(described(*session.document()), described(plain)), "");
  EXPECT_TRUE(session.document()->collObjects().checkConsistency());
  EXPECT_TRUE(session.document()->io() == nullptr ||
              session.document()->io()->checkConsistency(session.document()->collObjects()));
}

TEST(Opening, EqualsThePlainRuleOnGeneratedDocuments) {
  for (unsigned seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    DocumentSession session;
    const auto kind =
        seed % 2 == 0 ? DocumentFiles::Identifiers::Relative : DocumentFiles::Identifiers::Absolute;
    const DocumentFiles files(session.folder, kind);
    writeRandomDocument(files, random, seed % 5 == 0 ? Damage::none() : Damage::some(random));
    compareWithPlainRule(session, files.documentPath());
    if (::testing::Test::HasFailure()) break;
  }
}

// What was read once answers until the file changes; the plain rule reads all files each time.
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
  audio->OpenSubExpressions();
  Texts found;
  for (const auto& segment : audio->colSubExpressions()) {
    found.push_back(strFileName(segment->strGUID()));
  }
  EXPECT_EQ(found, (Texts{"film_audio2.xml", "other.XML"}));
  EXPECT_TRUE(session.document()->io()->checkConsistency(session.document()->collObjects()));
}

TEST(Opening, EqualsThePlainRuleOnOddDocuments) {
  const struct {
    const char* what;
    void (*write)(const DocumentFiles&);
  } cases[] = {
      {"identifiers by a detour",
       [](const DocumentFiles& files) {
         files.document({"../film_files/../film_files/film_version1"});
         files.write("film", test::ObjectText("AVDocument")
                                 .guids("ExpressedBy", {"./x/../film_files//film_version1.xml"}));
       }},
      {"a movie with the path of an object",
       [](const DocumentFiles& files) { files.storage("storage1", files.id("video1")); }},
      {"a Version listed by name of another class",
       [](const DocumentFiles& files) {
         files.document({"version1", "storage1"});
       }},
      {"two main videos of one Version",
       [](const DocumentFiles& files) { files.mainExpression("video2", "version1"); }},
      {"a segment that claims its Version, met after its parent",
       [](const DocumentFiles& files) {
         files.write("video2", test::ObjectText("Video")
                                   .text("VersionGUID", files.id("version1"))
                                   .span("Time", 0, 1)
                                   .text("PartOfVideo", files.id("video1")));
       }},
      {"the same of an audio, met before its parent",
       [](const DocumentFiles& files) {
         files.write("audio0", test::ObjectText("Audio")
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
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    DocumentSession session;
    session.files.smallLadder();
    one.write(session.files);
    compareWithPlainRule(session, session.files.documentPath());
  }
}

}  // namespace
}  // namespace velra
