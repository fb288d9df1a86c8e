// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>

#include "protocol/Expression.h"
#include "tool/AdvancedSlider.h"
#include "tool/Framelist.h"
#include "tool/Player.h"
#include "tool/SegmentEditor.h"
#include "tool/TranscriptView.h"

namespace velra {

class ApplicationModule;
class RangeDialog;
class ToolFace;

/// The first tab of an expression's form: player, timeline, strip, transcript and segment editing,
/// joined for one showing of the form. The three steps of its load are called in their order, with
/// the form's other steps between them.
class ExpressionTool {
 public:
  static constexpr int kDeleteKey = 46;
  static constexpr int kEscKey = 27;

  ExpressionTool(ExpressionRef object, ApplicationModule& app, MediaGraphFactory makeGraph,
                 RangeDialog& dialog, ToolFace& face);
  ~ExpressionTool();
  ExpressionTool(const ExpressionTool&) = delete;
  ExpressionTool& operator=(const ExpressionTool&) = delete;

  /// Leaves the form for another expression.
  std::function<void(const ExpressionRef&)> onLeaveFor;

  void OpenTranscriptView();
  /// False when the form must not open; the person has been told.
  bool LoadMovie();
  void LoadSegments();

  /// The release of a key, wherever the focus is. Keys with Shift, Control or Alt do nothing.
  void Form_KeyUp(int keyCode, int shift);
  void BackButt();

  const ExpressionRef obj;
  AdvancedSlider advsld;
  Framelist Framelist1;
  TranscriptView transcript;
  Player player;
  SegmentEditor segments;

 private:
  void connectParts();
  void openChild(std::int16_t position);

  ToolFace& face_;
};

}  // namespace velra
