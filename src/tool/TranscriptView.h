// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "protocol/Expression.h"

namespace velra {

class ApplicationModule;
class WordColl;

/// The spoken words as running text: those from the last jump up to the present position. Times are
/// seconds. A list in order of time is walked from the words shown last and no further, so that a
/// tick costs what is new; a list out of order is walked whole, with the same rule.
class TranscriptView {
 public:
  explicit TranscriptView(ApplicationModule& app) : app_(app) {}

  /// The whole text of the box, or what comes behind it. The box then shows its end.
  std::function<void(const std::string&)> onText;
  std::function<void(const std::string&)> onAppend;

  /// Decides whether there is a word list, and says so in the box when there is none.
  void OpenTranscriptView(Expression& obj);

  /// Brings the text up to a time. `restart` is a jump: the box is emptied, and the words that
  /// start before the time count as passed. kOverflow past 32,767 words.
  void UpdateTranscriptText(double seconds, bool restart);

  bool bHasWordList() const { return words_ != nullptr; }
  std::int16_t iWordIndex() const { return iWordIndex_; }
  const std::string& text() const { return text_; }

 private:
  void showNothing();
  void restartAt(double seconds);
  void continueTo(double seconds);
  void passWord();

  ApplicationModule& app_;
  ExpressionRef objTranscript_;
  std::shared_ptr<WordColl> words_;
  bool inTimeOrder_ = false;
  std::int16_t iWordIndex_ = 0;
  std::string text_;
};

}  // namespace velra
