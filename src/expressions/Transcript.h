// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "expressions/ExpressionBase.h"
#include "protocol/TranscriptExpression.h"

namespace velra {

/// The text expression of a Version: timed words, with a tree of segments over them. It is its own
/// transcript, so that nothing that shows an expression with its words needs a special case.
class Transcript : public ExpressionBase, public TranscriptExpression {
 public:
  using TranscriptExpression::isKind;

  explicit Transcript(ApplicationModule& app);
  ~Transcript() override;
  Transcript(const Transcript&) = delete;
  Transcript& operator=(const Transcript&) = delete;

  std::shared_ptr<WordColl> WordList() const override;
  void setWordList(const std::shared_ptr<WordColl>& words);

  bool bTranscriptOpen() const { return true; }
  ExpressionRef objTranscript() const override;
  bool bHasTranscript() const override { return true; }
  void OpenTranscript() override {}

 protected:
  void afterInit() override;
  void prepareAsSegmentOf(const ExpressionBase& parent) override;
};

/// Copies of the words that lie whole inside the span, bounds included.
std::shared_ptr<WordColl> wcNewWordList(const WordColl& words, const Chunk& span);

}  // namespace velra
