// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "support/RecordingMainWindow.h"
#include "support/Scene.h"
#include "support/ScriptedExpression.h"
#include "support/ScriptedMediaGraph.h"
#include "support/TestApplication.h"
#include "tool/ExpressionTool.h"
#include "tool/RangeDialog.h"
#include "tool/ToolFace.h"

namespace velra::test {

/// A window of the tool that only remembers.
class RecordingFace : public ToolFace {
 public:
  std::string timeCode = "00:00:00:00";
  bool swapped = false;
  bool timer = false;
  bool blinker = false;
  bool showsMovie = false;
  std::vector<std::string> said;
  std::vector<std::string> typed;  // in the dialog, which is closed by its close box when empty

  void movieOpens(MediaGraph&) override { showsMovie = true; }
  void movieCloses() override { showsMovie = false; }
  void showTimeCode(const std::string& text) override { timeCode = text; }
  void swapTimeCodeColours(bool isSwapped) override { swapped = isSwapped; }
  void runTimer1(bool on) override { timer = on; }
  void runBlinkerTimer(bool on) override { blinker = on; }
  void showTranscript(const std::string&) override {}
  void appendTranscript(const std::string&) override {}
  void showRangeDialog(RangeDialog& dialog) override;
  void announce(const std::string& sentence) override { said.push_back("said: " + sentence); }
  void announceTime(const std::string& text) override { announce(text); }
  void runPendingEvents() override {}
};

/// A person at a tool over a scripted movie of 100 seconds at 25 frames a second. Behind each act
/// it tells what looks different in the tool.
class ToolActor : public Actor {
 public:
  ToolActor();

 protected:
  void prepare(const std::vector<std::string>& answers) override;
  std::vector<std::string> takeShown() override;

 private:
  using State = std::map<std::string, std::string>;

  void learnToPrepare();
  void learnPlayer();
  void learnSegments();
  void learnMouse();
  bool open();
  State state() const;
  std::string timelineText() const;
  std::string stripText() const;

  TestApplication application_;
  ApplicationModule& app_ = application_.app;
  RecordingMainWindow mainWindow_;
  MovieScript movie_;
  RangeDialog dialog_;
  RecordingFace face_;
  std::shared_ptr<ScriptedExpression> obj_;
  std::unique_ptr<ExpressionTool> tool_;
  State told_;
};

}  // namespace velra::test
