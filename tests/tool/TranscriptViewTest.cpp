// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/TranscriptView.h"

#include <gtest/gtest.h>

#include "support/ScriptedExpression.h"
#include "support/TestApplication.h"

namespace velra::test {
namespace {

class TranscriptViewTest : public ::testing::Test, protected TestApplication {
 protected:
  void speak(const std::vector<double>& starts) {
    const auto transcript = std::make_shared<ScriptedExpression>(ObjectKind::Transcript);
    obj->transcript = transcript;
    transcript->words = std::make_shared<WordColl>();
    int number = 0;
    for (const double start : starts) {
      transcript->words->Add("", "", start, start + 0.1, "w" + std::to_string(++number));
    }
    view.onText = [this](const std::string& text) { shown = text; };
    view.onAppend = [this](const std::string& text) { shown += text; };
    view.OpenTranscriptView(*obj);
  }

  std::shared_ptr<ScriptedExpression> obj = ScriptedExpression::make(ObjectKind::Video, 0, 100);
  TranscriptView view{app};
  std::string shown;
};

TEST_F(TranscriptViewTest, WordsComeAtTheirStartAndNotAfterAJump) {
  const struct {
    std::vector<double> starts;  // none: those of before
    double at;
    bool restart;
    const char* shown;
    int index;  // how many words count as passed
  } cases[] = {
      {{1, 2, 2, 3}, 2, true, "", 1},  // one that starts at the very position is still to come
      {{}, 2, false, " w2 w3", 3},    {{}, 2.5, false, " w2 w3", 3},
      {{}, 0.5, true, "", 0},         {{}, 9, false, " w1 w2 w3 w4", 4},
      {{3, 1, 5, 2}, 0, true, "", 0},  // out of order: each word behind the count is asked
      {{}, 2, false, " w2 w4", 2},    {{}, 3, false, " w2 w4 w4", 3},
      {{}, 3, true, "", 2},           {{}, 6, false, " w3 w4", 4},
      {{}, 1.5, true, "", 1},         {{}, 6, false, " w2 w3 w4", 4},
  };
  for (const auto& one : cases) {
    if (!one.starts.empty()) speak(one.starts);
    view.UpdateTranscriptText(one.at, one.restart);
    EXPECT_EQ(shown, one.shown) << &one - cases;
    EXPECT_EQ(view.iWordIndex(), one.index) << &one - cases;
  }
}

TEST_F(TranscriptViewTest, WithoutAWordListTheBoxSaysSo) {
  const std::string none = "<" + app.messages.text(1097) + ">";
  view.OpenTranscriptView(*obj);
  EXPECT_EQ(view.text(), none);
  obj->transcript = std::make_shared<ScriptedExpression>(ObjectKind::Transcript);
  view.OpenTranscriptView(*obj);
  view.UpdateTranscriptText(5, true);
  view.UpdateTranscriptText(6, false);
  EXPECT_EQ(view.text(), none);
}

}  // namespace
}  // namespace velra::test
