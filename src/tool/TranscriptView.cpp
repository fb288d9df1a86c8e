// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/TranscriptView.h"

#include <algorithm>

#include "app/ApplicationModule.h"
#include "base/Arithmetic.h"
#include "protocol/TranscriptExpression.h"

namespace velra {

namespace {

bool startsEarlier(const WordItem& a, const WordItem& b) {
  return a.dStart < b.dStart;
}

}  // namespace

void TranscriptView::OpenTranscriptView(Expression& obj) {
  obj.OpenTranscript();
  if (!obj.bHasTranscript()) return showNothing();
  objTranscript_ = obj.objTranscript();
  const auto* transcript = as<TranscriptExpression>(objTranscript_.get());
  words_ = transcript ? transcript->WordList() : nullptr;
  if (!words_) return showNothing();
  inTimeOrder_ = std::is_sorted(words_->begin(), words_->end(), startsEarlier);
}

void TranscriptView::showNothing() {
  words_.reset();
  text_ = "<" + app_.LoadResString(Message::NoTranscript) + ">";
  if (onText) onText(text_);
}

void TranscriptView::UpdateTranscriptText(double seconds, bool restart) {
  if (!words_) return;
  if (restart) {
    restartAt(seconds);
  } else {
    continueTo(seconds);
  }
}

void TranscriptView::restartAt(double seconds) {
  text_.clear();
  iWordIndex_ = 0;
  if (onText) onText(text_);
  const auto passed = [&](const WordItem& word) { return word.dStart < seconds; };
  const auto count =
      inTimeOrder_ ? std::partition_point(words_->begin(), words_->end(), passed) - words_->begin()
                   : std::count_if(words_->begin(), words_->end(), passed);
  iWordIndex_ = toInt16(static_cast<double>(count));
}

void TranscriptView::continueTo(double seconds) {
  std::string added;
  const std::size_t count = words_->Count();
  for (auto i = static_cast<std::size_t>(iWordIndex_) + 1; i <= count; ++i) {
    const WordItem& word = words_->Item(i);
    if (word.dStart <= seconds) {
      added += " " + word.strTxt;
      passWord();
    } else if (inTimeOrder_) {
      break;
    }
  }
  if (added.empty()) return;
  text_ += added;
  if (onAppend) onAppend(added);
}

void TranscriptView::passWord() {
  iWordIndex_ = addInt16(iWordIndex_, 1);
}

}  // namespace velra
