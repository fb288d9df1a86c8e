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
  return sharedOf(const_cast<Transcript&>(*this));
}

void Transcript::afterInit() {
  ExpressionBase::afterInit();
  setWordList(std::make_shared<WordColl>());
}

void Transcript::prepareAsSegmentOf(const ExpressionBase& parent) {
  const auto* whole = as<const Transcript>(&parent);
  const auto words = whole ? whole->WordList() : nullptr;
  const auto span = ckGetChunk();
  if (!words || !span) raise(kNoObject);
  setWordList(wcNewWordList(*words, *span));
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
