// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/ExpressionTool.h"

#include <utility>

#include "tool/PropertyBag.h"
#include "tool/ToolFace.h"

namespace velra {

namespace {

// The looks that the form gives its two controls; all else is their own default.
constexpr std::int32_t kDarkRed = 192;
constexpr std::int32_t kGreen = 49152;
constexpr std::int32_t kRed = 255;

PropertyBag sliderLooks() {
  PropertyBag bag;
  bag.WriteProperty("RangeColor", kDarkRed, kDarkRed);
  bag.WriteProperty("StartRangeColor", kGreen, kGreen);
  bag.WriteProperty("dLargeChange", 0.0, 0.0);
  return bag;
}

PropertyBag stripLooks() {
  PropertyBag bag;
  bag.WriteProperty("SquareColor", kRed, kRed);
  bag.WriteProperty("StartSquareColor", kGreen, kGreen);
  return bag;
}

}  // namespace

ExpressionTool::ExpressionTool(ExpressionRef object, ApplicationModule& app,
                               MediaGraphFactory makeGraph, RangeDialog& dialog, ToolFace& face)
    : obj(std::move(object)),
      transcript(app),
      player(obj, {app, advsld, transcript, face, std::move(makeGraph)}),
      segments(obj, {app, player, advsld, Framelist1, dialog, face}),
      face_(face) {
  advsld.ReadProperties(sliderLooks());
  Framelist1.ReadProperties(stripLooks());
  connectParts();
}

ExpressionTool::~ExpressionTool() = default;

void ExpressionTool::connectParts() {
  transcript.onText = [this](const std::string& text) { face_.showTranscript(text); };
  transcript.onAppend = [this](const std::string& text) { face_.appendTranscript(text); };
  advsld.events.Click = [this](std::int16_t index) { segments.timelineClicked(index); };
  advsld.events.DblClick = [this](std::int16_t index) { openChild(index); };
  advsld.events.Scroll = [this] {
    segments.timelineScrolled();
    player.announcePosition();
  };
  advsld.events.Step = [this](bool forward) { forward ? player.cmdForward() : player.cmdRewind(); };
  Framelist1.events.Click = [this](std::int16_t position, std::int16_t) {
    segments.stripClicked(position);
  };
  Framelist1.events.DblClick = [this](std::int16_t position, std::int16_t) { openChild(position); };
}

void ExpressionTool::OpenTranscriptView() {
  transcript.OpenTranscriptView(*obj);
}

bool ExpressionTool::LoadMovie() {
  return player.LoadMovie(obj->strGetMediaObjectPath());
}

void ExpressionTool::LoadSegments() {
  segments.LoadSegments();
}

void ExpressionTool::Form_KeyUp(int keyCode, int shift) {
  if (shift != 0) return;
  if (keyCode == kDeleteKey) segments.ConfirmRemoveSegments();
  if (keyCode == kEscKey) segments.CancelSelection();
}

void ExpressionTool::BackButt() {
  if (const ExpressionRef parent = obj->objMainExpr()) onLeaveFor(parent);
}

void ExpressionTool::openChild(std::int16_t position) {
  onLeaveFor(segments.child(position));
}

}  // namespace velra
