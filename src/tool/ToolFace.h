// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

class MediaGraph;
class RangeDialog;

/// What the rules ask of the expression tool's window. It decides nothing. Timeline and strip tell
/// their own faces what changes.
class ToolFace {
 public:
  virtual ~ToolFace() = default;

  /// The movie whose pictures the window shows, from now until `movieCloses`.
  virtual void movieOpens(MediaGraph& movie) = 0;
  virtual void movieCloses() = 0;

  /// The text of `txtTime`, and whether its two colours have changed places.
  virtual void showTimeCode(const std::string& text) = 0;
  virtual void swapTimeCodeColours(bool swapped) = 0;

  /// 200 ms between ticks, which go to Player::Timer1.
  virtual void runTimer1(bool on) = 0;
  /// 500 ms between ticks, which go to SegmentEditor::BlinkerTimer.
  virtual void runBlinkerTimer(bool on) = 0;

  /// The whole text of `rtbTrans`; a text behind it, with its end brought into view.
  virtual void showTranscript(const std::string& text) = 0;
  virtual void appendTranscript(const std::string& text) = 0;

  /// Shows the dialog over the window until it closes.
  virtual void showRangeDialog(RangeDialog& dialog) = 0;

  /// Says a sentence to people who hear the window, wherever its focus is; nothing shows. Of times,
  /// which may come many in a second, the last one within a while is enough.
  virtual void announce(const std::string& sentence) = 0;
  virtual void announceTime(const std::string& timeCode) = 0;

  /// Lets the window do what waits, before the movie is released.
  virtual void runPendingEvents() = 0;
};

}  // namespace velra
