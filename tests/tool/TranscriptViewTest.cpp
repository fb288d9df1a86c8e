#include "tool/TranscriptView.h"

#include <random>

#include "tool/ToolFixture.h"

namespace velra::test {
namespace {

/// The rule in its plainest form: every word is asked every time.
class PlainTranscript {
 public:
  explicit PlainTranscript(const WordColl& words) : words_(words) {}

  void update(double seconds, bool restart) {
    if (restart) {
      text.clear();
      index = 0;
    }
    const std::size_t first = index + 1;
    for (std::size_t i = first; i <= words_.Count(); ++i) {
      const double start = words_.Item(i).dStart;
      if (restart ? start >= seconds : start > seconds) continue;
      if (!restart) text += " " + words_.Item(i).strTxt;
      ++index;
    }
  }

  std::string text;
  std::size_t index = 0;

 private:
  const WordColl& words_;
};

class TranscriptViewTest : public ToolTest {
 protected:
  void speak(const std::vector<double>& starts) {
    use("Transcript");
    obj->transcript = obj;
    obj->words = std::make_shared<WordColl>();
    int number = 0;
    for (const double start : starts) {
      obj->words->Add("", "", start, start + 0.1, "w" + std::to_string(++number));
    }
    view.onText = [this](const std::string& text) { shown = text; };
    view.onAppend = [this](const std::string& text) { shown += text; };
    view.OpenTranscriptView(*obj);
  }
  ~TranscriptViewTest() override {
    if (obj) obj->transcript.reset();
  }

  TranscriptView view{app};
  std::string shown;
};

TEST_F(TranscriptViewTest, wordsComeAtTheirStartAndNotAfterAJump) {
  speak({1, 2, 2, 3});
  view.UpdateTranscriptText(2, true);
  EXPECT_EQ(shown, "");
  EXPECT_EQ(view.iWordIndex(), 1) << "a word that starts at the very position is still to come";
  view.UpdateTranscriptText(2, false);
  EXPECT_EQ(shown, " w2 w3");
  view.UpdateTranscriptText(0.5, true);
  EXPECT_EQ(view.iWordIndex(), 0);
  view.UpdateTranscriptText(9, false);
  EXPECT_EQ(shown, " w1 w2 w3 w4");
}

TEST_F(TranscriptViewTest, withoutAWordListTheBoxSaysSo) {
  const std::string none = "<" + app.LoadResString(1097) + ">";
  use("Video");
  view.OpenTranscriptView(*obj);
  EXPECT_EQ(view.text(), none);
  obj->transcript = std::make_shared<ScriptedExpression>("Transcript");
  view.OpenTranscriptView(*obj);
  view.UpdateTranscriptText(5, true);
  view.UpdateTranscriptText(6, false);
  EXPECT_EQ(view.text(), none);
}

TEST_F(TranscriptViewTest, sortedOrNotItGivesWhatThePlainRuleGives) {
  std::mt19937 random(7);
  for (const bool sorted : {true, false}) {
    std::vector<double> starts;
    for (int i = 0; i < 200; ++i) starts.push_back(static_cast<double>(random() % 100) / 2);
    if (sorted) std::sort(starts.begin(), starts.end());
    speak(starts);
    PlainTranscript plain(*obj->words);
    for (int i = 0; i < 300; ++i) {
      const double at = static_cast<double>(random() % 200) / 4;
      const bool restart = i == 0 || random() % 4 == 0;
      view.UpdateTranscriptText(at, restart);
      plain.update(at, restart);
      ASSERT_EQ(shown, plain.text);
      ASSERT_EQ(static_cast<std::size_t>(view.iWordIndex()), plain.index);
    }
    obj->transcript.reset();
  }
}

}  // namespace
}  // namespace velra::test
