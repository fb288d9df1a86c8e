// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/VideoForm.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>

#include "base/RunTimeError.h"
#include "shell/LoadedVideoForm.h"
#include "shell/VideoFormFace.h"
#include "support/ToolSession.h"

namespace velra::test {
namespace {

using Steps = std::vector<std::string>;
using Person = std::function<void(LoadedVideoForm&)>;

/// A window that notes when it comes and goes, and in which a scripted person acts.
class ScriptedFace : public VideoFormFace {
 public:
  ScriptedFace(Steps& steps, Person person) : steps_(steps), person_(std::move(person)) {}
  ~ScriptedFace() override { steps_.push_back("gone " + title_); }

  void build(LoadedVideoForm& form) override {
    form_ = &form;
    title_ = form.caption();
    form.tool().Framelist1.Resize(9000);
    form.tool().advsld.Resize(9000);
  }
  void unbuild() override {}
  void showModally() override {
    steps_.push_back("show " + title_);
    if (person_) person_(*form_);
  }
  void closeWindow() override { steps_.push_back("close " + title_); }
  void movieOpens(MediaGraph&) override {}
  void movieCloses() override { steps_.push_back("movie closes " + title_); }
  void showTimeCode(const std::string&) override {}
  void swapTimeCodeColours(bool) override {}
  void runTimer1(bool) override {}
  void runBlinkerTimer(bool) override {}
  void showTranscript(const std::string&) override {}
  void appendTranscript(const std::string&) override {}
  void showRangeDialog(RangeDialog&) override {}
  void announce(const std::string&) override {}
  void announceTime(const std::string&) override {}
  void runPendingEvents() override {}

 private:
  Steps& steps_;
  Person person_;
  LoadedVideoForm* form_ = nullptr;
  std::string title_;
};

class VideoFormTest : public ::testing::Test, public VideoFormFaces {
 protected:
  std::unique_ptr<VideoFormFace> makeVideoForm(FormOwner&) override {
    Person person;
    if (!people.empty()) {
      person = people.front();
      people.pop_front();
    }
    return std::make_unique<ScriptedFace>(steps, person);
  }

  ToolSession session{*this};
  std::deque<Person> people;  // one for each showing
  Steps steps;
};

TEST_F(VideoFormTest, ItHoldsNextToNothing) {
  EXPECT_LE(sizeof(VideoForm), 6 * sizeof(void*));
}

TEST_F(VideoFormTest, AWalkThroughTheTreeUnloadsEachFormBeforeTheNextShows) {
  people = {[](LoadedVideoForm& form) { form.tool().advsld.DoubleClick(2); },
            [](LoadedVideoForm& form) { form.tool().BackButt(); },
            [](LoadedVideoForm& form) { form.tool().BackButt(); }};
  session.show();
  EXPECT_EQ(steps,
            (Steps{"show Main", "close Main", "movie closes Main", "gone Main", "show B", "close B",
                   "movie closes B", "gone B", "show Main", "movie closes Main", "gone Main"}));
  EXPECT_EQ(session.movie.opened, 0);
}

TEST_F(VideoFormTest, AMovieThatCannotBeOpenedShowsNoForm) {
  session.movie.refusal = "It is damaged.";
  session.show();
  EXPECT_EQ(steps, Steps{"gone Main"});
  EXPECT_EQ(session.ui.takeShown().size(), 1u);
}

TEST_F(VideoFormTest, AnErrorInTheLoadPassesAndLeavesNothing) {
  session.main->child(1)->span.reset();
  EXPECT_THROW(session.main->child(1)->ShowForm(session.mainWindow), RunTimeError)
      << "a timeline without a span";
  session.main->child(1)->SetChunk(10, 20);
  EXPECT_EQ(session.movie.opened, 0);
  session.show();
  EXPECT_EQ(steps.back(), "gone Main") << "other forms open as before";
}

TEST_F(VideoFormTest, ATimeThatNoPlaceCanHoldCostsTheFormAndItsFileIsNamed) {
  session.main->child(2)->SetChunk(30, 4e8);
  session.show();
  EXPECT_EQ(steps.back(), "gone Main");
  EXPECT_EQ(session.ui.takeShown(), Steps{"exclamation: B holds a number that cannot be shown: "
                                          "Overflow: a number is too large for its place"});
}

TEST_F(VideoFormTest, OnlyOKTakesTheFieldsAndNeitherTouchesSegments) {
  const auto edit = [](LoadedVideoForm& form) {
    form.fields().colControls()[0].value = std::string("New title");
    form.tool().obj->AddSubExpression("made", 50, 60);
  };
  people = {[&](LoadedVideoForm& form) {
              edit(form);
              form.CancelButt_Click();
            },
            [&](LoadedVideoForm& form) {
              edit(form);
              form.OKButt_Click();
            }};
  session.show();
  EXPECT_FALSE(session.main->bChanged());
  session.show();
  EXPECT_EQ(toText(session.main->fields->field("Title")->vContent()), "New title");
  EXPECT_EQ(session.main->children.size(), 4u);
}

TEST_F(VideoFormTest, AFormWithoutItsExpressionRefuses) {
  VideoForm form(session.services);
  EXPECT_THROW(form.Show(session.mainWindow), RunTimeError);
}

}  // namespace
}  // namespace velra::test
