// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
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
    main_ = session_.expression("audio1");
  }

  /// The titles of the chain from a segment on, by object and by field.
  static std::string chain(ExpressionRef segment) {
    std::string text;
    for (int steps = 0; segment && steps < 20; ++steps) {
      const ExpressionRef next = segment->objFollowedBy();
      const std::string named = segment->strFollowedBy();
      EXPECT_EQ(named.empty(), next == nullptr) << segment->strTitle();
      EXPECT_TRUE(!next || bSamePath(named, next->strGUID())) << named;
      text += segment->strTitle();
      segment = next;
    }
    return text;
  }
  void reopen() {
    main_.reset();
    session_.close();
    ASSERT_EQ(session_.open(session_.files.documentPath()), "");
    main_ = session_.expression("audio1");
  }
  ExpressionRef titled(const std::string& title) const {
    for (const ExpressionRef& segment : main_->colSubExpressions()) {
      if (segment->strTitle() == title) return segment;
    }
    return nullptr;
  }

  DocumentSession session_;
  ExpressionRef main_;
};

TEST_F(Segments, JoinTheChainByTheirTimes) {
  const struct {
    const char* title;
    double start, end;
    const char* first;
    const char* chain;
  } steps[] = {
      {"c", 20, 30, "c", "c"},                                 // alone
      {"a", 0, 5, "a", "ac"},                                  // before all
      {"e", 40, 50, "a", "ace"},  {"d", 32, 38, "a", "acde"},  // between two
      {"b", 6, 19, "a", "abcde"},
  };
  for (const auto& step : steps) {
    main_->AddSubExpression(step.title, step.start, step.end);
    EXPECT_EQ(chain(titled(step.first)), step.chain);
  }
  std::string added;
  for (const ExpressionRef& segment : main_->colSubExpressions()) added += segment->strTitle();
  EXPECT_EQ(added, "caedb");
  const ExpressionRef b = titled("b");
  EXPECT_EQ(b->objMainExpr(), main_);
  EXPECT_EQ(b->verVersion(), session_.object("version1"));
  EXPECT_EQ(b->strGetPartOf(), main_->strGUID());
  EXPECT_EQ(b->ckGetChunk()->dend, 19);
  EXPECT_TRUE(session_.takeShown().empty());
}

// A sibling that touches leaves its place open to any later one.
TEST_F(Segments, ATouchingSiblingIsDisplacedByALaterOne) {
  main_->AddSubExpression("far", 0, 5);
  main_->AddSubExpression("near", 5, 10);
  main_->AddSubExpression("x", 10, 20);
  EXPECT_EQ(chain(titled("far")), "farnearx");
  DocumentSession other;
  other.files.smallLadder();
  ASSERT_EQ(other.open(other.files.documentPath()), "");
  const ExpressionRef audio = other.expression("audio1");
  audio->AddSubExpression("near", 5, 10);
  audio->AddSubExpression("far", 0, 4);
  audio->AddSubExpression("x", 10, 20);
  const auto& segments = audio->colSubExpressions();
  EXPECT_EQ(segments[1]->objFollowedBy(), segments[2]);  // far, although near ends at x's start
  EXPECT_EQ(segments[0]->objFollowedBy(), nullptr);
}

TEST_F(Segments, LeaveTheChainClosedOverTheGap) {
  const char* titles[] = {"a", "b", "c", "d"};
  for (int i = 0; i < 4; ++i) main_->AddSubExpression(titles[i], i * 10, i * 10 + 9);
  titled("b")->AddSubExpression("deep", 11, 12);
  EXPECT_TRUE(session_.document()->bSave());
  const ExpressionRef a = titled("a");
  main_->RemoveSubExpressionByIndex(2);  // b and what is below it
  EXPECT_EQ(chain(a), "acd");
  EXPECT_TRUE(a->bChanged());
  EXPECT_FALSE(titled("d")->bChanged());
  main_->RemoveSubExpressionByPointer(titled("d"));
  EXPECT_EQ(chain(a), "ac");
  EXPECT_FALSE(titled("c")->secol().relationField("followedbyaudio")->bValid());
  main_->RemoveSubExpressionByIndex(1);
  EXPECT_EQ(chain(titled("c")), "c");
  EXPECT_EQ(session_.document()->colObjRemoved().size(), 4U);
  EXPECT_THROW(main_->RemoveSubExpressionByIndex(2), RunTimeError);
  EXPECT_TRUE(session_.document()->collObjects().checkConsistency());
}

TEST_F(Segments, ComeBackFromTheirFilesInTheSameChain) {
  main_->AddSubExpression("b", 10, 20);
  main_->AddSubExpression("a", 0, 10);
  titled("a")->AddSubExpression("deep", 2, 3);
  EXPECT_TRUE(session_.document()->bSave());
  ASSERT_EQ(session_.open(session_.files.documentPath()), "");
  main_ = session_.expression("audio1");
  EXPECT_EQ(chain(titled("a")), "ab");
  ASSERT_EQ(titled("a")->colSubExpressions().size(), 1U);
  EXPECT_EQ(titled("a")->colSubExpressions()[0]->objMainExpr(), titled("a"));
  EXPECT_EQ(session_.version("version1")->auMainAudio(), main_);
}

// A number is free again as soon as a segment that was never saved is removed.
TEST_F(Segments, StayWhenTheyHaveTheNumberOfARemovedOne) {
  for (const bool savedBetween : {false, true}) {
    main_->AddSubExpression("first", 0, 10);
    const std::string file = titled("first")->strGUID();
    main_->RemoveSubExpressionByPointer(titled("first"));
    if (savedBetween) session_.document()->bSave();
    main_->AddSubExpression("second", 0, 10);
    ASSERT_EQ(titled("second")->strGUID(), file);
    EXPECT_TRUE(session_.document()->bSave());
    reopen();
    ASSERT_TRUE(titled("second"));
    main_->RemoveSubExpressionByPointer(titled("second"));
    EXPECT_TRUE(session_.document()->bSave());
    reopen();
    EXPECT_FALSE(titled("second"));
  }
}

TEST_F(Segments, ForgetARemovedVersion) {
  ObjectRef version = session_.object("version1");
  const ObjectRef kept = version;
  session_.document()->RemoveObject(version);
  EXPECT_EQ(main_->strVersionGUID(), "");
  EXPECT_TRUE(main_->bChanged());
}

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
