// SPDX-License-Identifier: GPL-3.0-or-later
#include "expressions/Transcript.h"

#include "base/RunTimeError.h"
#include "schema/SEColl.h"

namespace velra {

namespace {

constexpr std::string_view kWordListField = "transcriptwordlist";

}  // namespace

Transcript::Transcript(ApplicationModule& app) : ExpressionBase(app, ObjectKind::Transcript) {}

Transcript::~Transcript() = default;

std::shared_ptr<WordColl> Transcript::WordList() const {
  const SchemaElement* field = secol().relationField(kWordListField);
  return field && field->bValid() ? asWords(field->vContent()) : nullptr;
}

void Transcript::setWordList(const std::shared_ptr<WordColl>& words) {
  for (SchemaElement& field : secol()) {
    if (field.strLowerName() == kWordListField) field.assign(words);
  }
}

ExpressionRef Transcript::objTranscript() const {
  auto self = const_cast<Transcript*>(this)->shared_from_this();
  return std::dynamic_pointer_cast<Expression>(self);
}

void Transcript::afterInit() {
  ExpressionBase::afterInit();
  setWordList(std::make_shared<WordColl>());
}

void Transcript::prepareSegment(ExpressionBase& segment) {
  auto* transcript = dynamic_cast<Transcript*>(&segment);
  const auto words = WordList();
  const auto span = segment.ckGetChunk();
  if (!transcript || !words || !span) raise(kNoObject);
  transcript->setWordList(wcNewWordList(*words, *span));
}

std::shared_ptr<WordColl> wcNewWordList(const WordColl& words, const Chunk& span) {
  auto result = std::make_shared<WordColl>();
  for (const WordItem& word : words) {
    if (word.dStart < span.dStart || word.dend > span.dend) continue;
    result->Add("", "", word.dStart, word.dend, word.strTxt);
  }
  return result;
}

}  // namespace velra
