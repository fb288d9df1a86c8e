// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "support/RecordingMainWindow.h"
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
  std::string transcript;
  /// What the person does in the dialog; the default closes it by its close box.
  std::function<void(RangeDialog&)> inDialog = [](RangeDialog&) {};

  bool showsMovie = false;

  void movieOpens(MediaGraph&) override { showsMovie = true; }
  void movieCloses() override { showsMovie = false; }
  void showTimeCode(const std::string& text) override { timeCode = text; }
  void swapTimeCodeColours(bool isSwapped) override { swapped = isSwapped; }
  void runTimer1(bool on) override { timer = on; }
  void runBlinkerTimer(bool on) override { blinker = on; }
  void showTranscript(const std::string& text) override { transcript = text; }
  void appendTranscript(const std::string& text) override { transcript += text; }
  void showRangeDialog(RangeDialog& dialog) override { inDialog(dialog); }
  void runPendingEvents() override {}
};

/// A tool over a scripted movie of 100 seconds at 25 frames a second, and an expression over all of
/// it. `open` opens the tool as its form does.
class ToolTest : public ::testing::Test, protected TestApplication {
 protected:
  ToolTest() { app.gMainForm = &mainWindow; }

  void use(ObjectKind kind, double start = 0, double end = 100) {
    obj = ScriptedExpression::make(kind, start, end);
    obj->title = "Main";
    obj->movie = folder.write("movie.avi", "RIFF");
  }
  void add(const std::string& title, double start, double end) {
    obj->AddSubExpression(title, start, end);
  }
  bool open() {
    tool = std::make_unique<ExpressionTool>(
        obj, app, [this] { return std::make_unique<ScriptedMediaGraph>(movie); }, dialog, face);
    tool->Framelist1.Resize(9000);
    tool->advsld.Resize(10400);
    tool->OpenTranscriptView();
    if (!tool->LoadMovie()) return false;
    tool->LoadSegments();
    shownAtOpening = ui.takeShown();
    return true;
  }
  /// The person types two times in the dialog and presses OK.
  void typeInDialog(const std::vector<std::string>& fields) {
    face.inDialog = [fields](RangeDialog& shown) {
      for (std::size_t i = 0; i < fields.size(); ++i) {
        shown.Change(static_cast<RangeDialog::Field>(i), fields[i]);
      }
      shown.OKButton();
    };
  }
  std::vector<std::string> spans() const {
    std::vector<std::string> all;
    for (const ExpressionRef& segment : obj->children) {
      const auto times = segment->ckGetChunk();
      all.push_back(segment->strTitle() + " " + std::to_string(std::lround(times->dStart)) + "-" +
                    std::to_string(std::lround(times->dend)));
    }
    return all;
  }
  std::vector<std::string> plain(int message) const {
    return {"plain: " + app.messages.text(message)};
  }

  RecordingMainWindow mainWindow;
  MovieScript movie;
  RangeDialog dialog;
  RecordingFace face;
  std::shared_ptr<ScriptedExpression> obj;
  std::vector<std::string> shownAtOpening;
  std::unique_ptr<ExpressionTool> tool;
};

}  // namespace velra::test
