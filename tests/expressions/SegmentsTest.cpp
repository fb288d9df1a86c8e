// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "expressions/Audio.h"
#include "expressions/Transcript.h"
#include "expressions/Video.h"
#include "schema/SEColl.h"
#include "support/DocumentSession.h"
#include "support/SmallSchema.h"

namespace velra {
namespace {

using test::DocumentSession;
using Texts = std::vector<std::string>;

class Segments : public ::testing::Test {
 protected:
  Segments() {
    session_.files.smallLadder();
    EXPECT_EQ(session_.open(session_.files.documentPath()), "");
  }

  DocumentSession session_;
};

TEST_F(Segments, FieldsOfTheWrongTypeAreReportedAndCountAsEmpty) {
  DocumentSession session;
  session.files.smallLadder();
  std::string schema = test::kSmallSchema;
  for (const char* field : {"PartOfVideo", "FollowedByVideo", "HasAudio"}) {
    const std::string declaration = std::string("name=\"") + field + "\" type=\"";
    schema = replaceAll(schema, declaration + "xsd:string", declaration + "xsd:float");
  }
  session.useSchema(schema);
  ASSERT_EQ(session.open(session.files.documentPath()), "");
  const auto video = as<Video>(session.object("video1"));
  EXPECT_EQ(video->strGetPartOf(), "");
  EXPECT_EQ(video->strFollowedBy(), "");
  video->OpenAudio();
  EXPECT_EQ(session.takeShown(), (Texts{"plain: The field HasAudio must be a string type",
                                        "plain: The field HasTranscript must be a string type",
                                        "plain: The field HasAudio must be a string type"}));
}

TEST_F(Segments, AVideoOpensTheAudioThatItNames) {
  const auto video = as<Video>(session_.object("video1"));
  const auto name = [&](const std::string& guid) {
    SchemaElement* field = video->secol().relationField("hasaudio");
    field->setVContent(guid);
    field->setBValid(true);
    video->OpenAudio();
  };
  video->OpenAudio();
  EXPECT_FALSE(video->bHasAudio());
  name(session_.files.id("transcript1"));
  EXPECT_EQ(session_.takeShown(), Texts{"plain: Audio: class name does not match xml instance"});
  name(session_.files.id("audio1"));
  EXPECT_EQ(ObjectRef(video->objAudio()), session_.object("audio1"));
  name(session_.files.path("version2"));
  EXPECT_EQ(session_.takeShown(),
            Texts{"exclamation: Could not find the object: " + session_.files.path("version2")});
  EXPECT_FALSE(video->bHasAudio());
  video->OpenTranscript();
  EXPECT_EQ(ObjectRef(video->objTranscript()), session_.object("transcript1"));
}

TEST_F(Segments, OfATranscriptGetCopiesOfTheWordsInside) {
  const auto transcript = as<Transcript>(session_.object("transcript1"));
  EXPECT_EQ(transcript->WordList(), nullptr);
  EXPECT_THROW(transcript->AddSubExpression("none", 0, 1), RunTimeError);
  auto words = std::make_shared<WordColl>();
  words->Add("", "", 1, 2, "whole");
  words->Add("", "", 0.9, 1.1, "across");
  words->Add("", "", 1.2, 1.4, "inside");
  words->Add("", "", 1.9, 2.1, "out");
  transcript->setWordList(words);
  const auto copy = wcNewWordList(*words, Chunk{"", "", 1, 2, ""});
  ASSERT_EQ(copy->Count(), 2U);
  EXPECT_EQ(copy->Item(1).strTxt + copy->Item(2).strTxt, "wholeinside");
  words->Item(1).strTxt = "changed";
  EXPECT_EQ(copy->Item(1).strTxt, "whole");
  EXPECT_EQ(wcNewWordList(*words, Chunk{"", "", 0, 1, ""})->Count(), 0U);
  transcript->AddSubExpression("part", 1, 2);
  EXPECT_EQ(as<Transcript>(transcript->colSubExpressions().back())->WordList()->Count(), 2U);
}

}  // namespace
}  // namespace velra
