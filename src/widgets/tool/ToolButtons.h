// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include "tool/ExpressionTool.h"

namespace velra {

/// A button of the tool. Where its caption is a sign, people hear its tool tip, in their language.
struct ButtonLooks {
  const char* name;
  const char* caption;
  const char* toolTip;
  void (*command)(ExpressionTool&);
};

inline constexpr ButtonLooks kPlayerButtons[] = {
    {"cmdPlay", ">", QT_TRANSLATE_NOOP("Texts", "Play movie"),
     [](ExpressionTool& tool) { tool.player.cmdPlay(); }},
    {"cmdPause", "ll", QT_TRANSLATE_NOOP("Texts", "Pause movie"),
     [](ExpressionTool& tool) { tool.player.cmdPause(); }},
    {"cmdStop", "Stop", QT_TRANSLATE_NOOP("Texts", "Stop movie"),
     [](ExpressionTool& tool) { tool.player.cmdStop(); }},
    {"cmdRewind", "-1", QT_TRANSLATE_NOOP("Texts", "step one frame backward"),
     [](ExpressionTool& tool) { tool.player.cmdRewind(); }},
    {"cmdForward", "+1", QT_TRANSLATE_NOOP("Texts", "step one frame forward"),
     [](ExpressionTool& tool) { tool.player.cmdForward(); }},
};

// The tool tips of the two last but one name the bound that moves, and not the side of the button.
inline constexpr ButtonLooks kSegmentButtons[] = {
    {"cmdSel", "|", QT_TRANSLATE_NOOP("Texts", "Select Start/End point of new segment"),
     [](ExpressionTool& tool) { tool.segments.SelectSegmentPoint(); }},
    {"cmdNew", "|-|", QT_TRANSLATE_NOOP("Texts", "Create new segment"),
     [](ExpressionTool& tool) { tool.segments.NewSegmentByDialog(); }},
    {"cmdModif", "<->", QT_TRANSLATE_NOOP("Texts", "Modify selected segment"),
     [](ExpressionTool& tool) { tool.segments.ModifySelectedSegment(); }},
    {"cmdCanc", "X", QT_TRANSLATE_NOOP("Texts", "Remove selected segment"),
     [](ExpressionTool& tool) { tool.segments.ConfirmRemoveSegments(); }},
    {"cmdMerge", "- + -", QT_TRANSLATE_NOOP("Texts", "Merge the selected Expresions"),
     [](ExpressionTool& tool) { tool.segments.MergeSelectedSegments(); }},
    {"cmdPrev", "<--", QT_TRANSLATE_NOOP("Texts", "Move previous segment bound"),
     [](ExpressionTool& tool) { tool.segments.MoveToPreviousBound(); }},
    {"cmdNext", "-->", QT_TRANSLATE_NOOP("Texts", "Move to next segment bound"),
     [](ExpressionTool& tool) { tool.segments.MoveToNextBound(); }},
    {"cmdExpandLeft", "|>", QT_TRANSLATE_NOOP("Texts", "Extend rigth bound"),
     [](ExpressionTool& tool) { tool.segments.ExtendPreviousSegment(); }},
    {"cmdExpandRight", "<|", QT_TRANSLATE_NOOP("Texts", "Extend left bound"),
     [](ExpressionTool& tool) { tool.segments.ExtendNextSegment(); }},
    {"cmdKeyFrame", "K", QT_TRANSLATE_NOOP("Texts", "Set a new keyframe"),
     [](ExpressionTool& tool) { tool.segments.ChangeKeyFrame(); }},
};

}  // namespace velra
