// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/ToolActor.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <utility>

#include "base/Text.h"

namespace velra::test {

namespace {

/// The words of a command, and the numbers among them.
class Words {
 public:
  explicit Words(const std::string& text) {
    for (const std::string& word : split(text, ' ')) words_.push_back(word);
  }
  const std::string& text(std::size_t place) const { return words_.at(place); }
  double number(std::size_t place) const { return std::stod(words_.at(place)); }
  std::int16_t index() const { return static_cast<std::int16_t>(number(0)); }
  int shift() const { return words_.size() > 1 && words_[1] == "shift" ? 1 : 0; }

 private:
  std::vector<std::string> words_;
};

std::string spanOf(const Expression& expression) {
  const auto times = expression.ckGetChunk();
  return numberText(times->dStart) + "-" + numberText(times->dend);
}

}  // namespace

void RecordingFace::showRangeDialog(RangeDialog& dialog) {
  for (std::size_t field = 0; field < typed.size(); ++field) {
    dialog.Change(static_cast<RangeDialog::Field>(field), typed[field]);
  }
  if (!typed.empty()) dialog.OKButton();
}

ToolActor::ToolActor() {
  app_.gMainForm = &mainWindow_;
  replaced_[application_.folder.path()] = "~";
  learnToPrepare();
  learnPlayer();
  learnSegments();
  learnMouse();
}

void ToolActor::prepare(const std::vector<std::string>& answers) {
  application_.ui.forgetAnswers();
  for (const std::string& answer : answers) {
    application_.ui.inputs.push_back(answer);
    application_.ui.yesNo.push_back(answer == "yes");
  }
}

/// The boxes, the calls of the movie and the main window, and what has changed in the tool.
std::vector<std::string> ToolActor::takeShown() {
  std::vector<std::string> shown = application_.ui.takeShown();
  for (const std::string& call : std::exchange(mainWindow_.calls, {})) {
    shown.push_back("main window: " + call);
  }
  std::ranges::move(std::exchange(face_.said, {}), std::back_inserter(shown));
  if (!tool_) return shown;
  for (const auto& [what, text] : state()) {
    if (std::exchange(told_[what], text) != text) shown.push_back(what + ": " + text);
  }
  return shown;
}

void ToolActor::learnToPrepare() {
  verbs_["use"] = [this](const std::string& text) {  // KIND START END
    const Words words(text);
    tool_.reset();
    told_.clear();
    obj_ = ScriptedExpression::make(kindOfRoot(words.text(0)).value(), words.number(1),
                                    words.number(2));
    obj_->title = "Main";
    obj_->movie = application_.folder.write("movie.avi", "RIFF");
  };
  verbs_["segment"] = [this](const std::string& text) {  // TITLE START END
    const Words words(text);
    obj_->AddSubExpression(words.text(0), words.number(1), words.number(2));
  };
  verbs_["move"] = [this](const std::string& text) {  // NUMBER START END, behind the tool's back
    const Words words(text);
    obj_->child(static_cast<std::size_t>(words.index()))
        ->SetChunk(words.number(1), words.number(2));
  };
  verbs_["movie"] = [this](auto& file) {
    obj_->movie = file.empty() ? "" : application_.folder / file;
  };
  verbs_["lasts"] = [this](auto& seconds) { movie_.duration = std::stod(seconds); };
  verbs_["frames"] = [this](auto& seconds) { movie_.frameLength = std::stod(seconds); };
  verbs_["stands"] = [this](auto& seconds) { movie_.position = std::stod(seconds); };
  verbs_["refuses"] = [this](auto& what) {
    obj_->refusesNewSegments = what == "segments";
    movie_.refusal = obj_->refusesNewSegments ? "" : what;
  };
  verbs_["cancel-movies"] = [this](auto&) { application_.ui.waits = false; };
  verbs_["open"] = [this](auto&) {
    if (!open()) tool_.reset(), say("no form");
  };
}

bool ToolActor::open() {
  tool_ = std::make_unique<ExpressionTool>(
      obj_, app_, [this] { return std::make_unique<ScriptedMediaGraph>(movie_); }, dialog_, face_);
  tool_->Framelist1.Resize(9000);
  tool_->advsld.Resize(10400);
  tool_->OpenTranscriptView();
  if (!tool_->LoadMovie()) return false;
  tool_->LoadSegments();
  return true;
}

void ToolActor::learnPlayer() {
  verbs_["seek"] = [this](auto& seconds) { tool_->player.SeekTo(std::stod(seconds)); };
  verbs_["play"] = [this](auto&) { tool_->player.cmdPlay(); };
  verbs_["stop"] = [this](auto&) { tool_->player.cmdStop(); };
  verbs_["forward"] = [this](auto&) { tool_->player.cmdForward(); };
  verbs_["rewind"] = [this](auto&) { tool_->player.cmdRewind(); };
  verbs_["pass"] = [this](auto& seconds) {
    movie_.pass(std::stod(seconds));
    tool_->player.Timer1();
  };
  verbs_["close"] = [this](auto&) {
    tool_->player.ClosePlayer();
    say(std::to_string(movie_.opened) + " movies open");
  };
  verbs_["calls"] = [this](auto&) {
    for (const std::string& call : movie_.takeCalls()) say(call);
  };
  verbs_["time"] = [this](auto& text) { say(numberText(tool_->player.TextToTime(text))); };
}

void ToolActor::learnSegments() {
  verbs_["point"] = [this](auto&) { tool_->segments.SelectSegmentPoint(); };
  verbs_["type"] = [this](auto& bounds) { face_.typed = split(bounds, ':'); };
  verbs_["new"] = [this](auto&) { tool_->segments.NewSegmentByDialog(); };
  verbs_["modify"] = [this](auto&) { tool_->segments.ModifySelectedSegment(); };
  verbs_["remove"] = [this](auto&) { tool_->segments.ConfirmRemoveSegments(); };
  verbs_["merge"] = [this](auto&) { tool_->segments.MergeSelectedSegments(); };
  verbs_["next"] = [this](auto&) { tool_->segments.MoveToNextBound(); };
  verbs_["previous"] = [this](auto&) { tool_->segments.MoveToPreviousBound(); };
  verbs_["extend-next"] = [this](auto&) { tool_->segments.ExtendNextSegment(); };
  verbs_["extend-previous"] = [this](auto&) { tool_->segments.ExtendPreviousSegment(); };
  verbs_["key-frame"] = [this](auto&) { tool_->segments.ChangeKeyFrame(); };
  verbs_["blink"] = [this](auto&) { tool_->segments.BlinkerTimer(); };
}

void ToolActor::learnMouse() {
  verbs_["range"] = [this](auto& text) {
    tool_->advsld.MouseDown(Words(text).index(), Words(text).shift());
  };
  verbs_["picture"] = [this](auto& text) {
    tool_->Framelist1.MouseDown(Words(text).index(), Words(text).shift());
  };
  verbs_["thumb"] = [this](auto& value) { tool_->advsld.UserMovesThumb(std::stoi(value)); };
  verbs_["resize"] = [this](auto&) { tool_->advsld.Resize(9000); };
  verbs_["esc"] = [this](auto& shift) {
    tool_->Form_KeyUp(ExpressionTool::kEscKey, shift == "shift" ? 1 : 0);
  };
  verbs_["del"] = [this](auto& shift) {
    tool_->Form_KeyUp(ExpressionTool::kDeleteKey, shift == "shift" ? 1 : 0);
  };
}

ToolActor::State ToolActor::state() const {
  State now;
  const Player& player = tool_->player;
  now["expression"] = spanOf(*obj_) + ", rate " + numberText(obj_->frameRate) + ", key frame at " +
                      numberText(obj_->keyFrameTime);
  now["movie"] = numberText(movie_.position) + (movie_.running ? ", runs" : "") +
                 (player.bPlaying() ? ", plays" : "") + (face_.timer ? ", ticks" : "") +
                 (player.hasMovie() ? "" : ", none");
  now["time code"] =
      face_.timeCode + (face_.blinker ? ", blinks" : "") + (face_.swapped ? ", swapped" : "");
  now["segments"] = "";
  for (const ExpressionRef& segment : obj_->children) {
    std::string& all = now["segments"];
    all += (all.empty() ? "" : ", ") + segment->strTitle() + " " + spanOf(*segment);
    const ExpressionRef next = segment->objFollowedBy();
    if (next) all += " before " + next->strTitle();
  }
  now["strip"] = stripText();
  now["timeline"] = timelineText();
  return now;
}

/// Its span and thumb, whether it works, and its ranges: as "[10-20]" where one is selected.
std::string ToolActor::timelineText() const {
  const AdvancedSlider& slider = tool_->advsld;
  std::string text = numberText(slider.dMin()) + "-" + numberText(slider.dMax()) + " by " +
                     numberText(slider.dLargeChange()) + " at " + numberText(slider.dPosition()) +
                     (slider.Enabled() ? "" : ", disabled") +
                     (slider.blinkLine().visible ? ", line" : "") + ":";
  for (std::size_t i = 1; i <= slider.marks().size(); ++i) {
    const Range& range = *slider.colRanges().Item(i);
    const bool selected = slider.marks()[i - 1].borderWidth == AdvancedSlider::kSelectedBorder;
    const std::string bounds = numberText(range.dBegin) + "-" + numberText(range.dend);
    text += selected ? " [" + bounds + "]" : " " + bounds;
  }
  return text;
}

/// The captions with the places of their pictures; in brackets where one is selected.
std::string ToolActor::stripText() const {
  std::string text;
  for (std::int16_t i = 1; i <= tool_->Framelist1.Count(); ++i) {
    const Framelist::Image& image = tool_->Framelist1.image(i);
    EXPECT_EQ(image.caption, tool_->advsld.marks().at(static_cast<std::size_t>(i) - 1).caption);
    const std::string picture = std::to_string(image.tag) + " " + image.caption;
    text += (i == 1 ? "" : ", ") + (image.squareVisible ? "[" + picture + "]" : picture);
  }
  return text;
}

}  // namespace velra::test
