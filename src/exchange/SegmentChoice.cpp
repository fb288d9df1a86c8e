// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/SegmentChoice.h"

#include <algorithm>
#include <utility>

#include "exchange/ContentText.h"
#include "exchange/ExchangeFailure.h"

namespace velra {

namespace {

bool isSegment(const ContentObject& object) {
  return isExpression(object.kind) && object.level > 0;
}

bool passes(const ContentObject& segment, const ExportOptions& options) {
  return (!options.kind || segment.kind == *options.kind) &&
         (!options.level || segment.level == *options.level);
}

}  // namespace

const ContentObject* chosenVersion(const Content& content, const ExportOptions& options) {
  const ContentList versions = content.below(content.document());
  const auto wanted = static_cast<std::size_t>(options.version.value_or(1));
  if (wanted <= versions.size()) return versions[wanted - 1];
  if (!options.version) return nullptr;
  throw ExchangeFailure("The document has " + std::to_string(versions.size()) +
                        " Versions and no number " + std::to_string(wanted) + ".");
}

ContentList allSegments(const Content& content, const ExportOptions& options) {
  const std::size_t version =
      options.version ? content.numberOf(*chosenVersion(content, options)) : kNoContent;
  ContentList segments;
  for (const ContentObject& object : content.objects) {
    const bool rightVersion = version == kNoContent || object.version == version;
    if (isSegment(object) && rightVersion && passes(object, options)) segments.push_back(&object);
  }
  return segments;
}

ContentList segmentsOfLevel(const Content& content, const ExportOptions& options) {
  ExportOptions exact = options;
  exact.version = options.version.value_or(1);
  exact.level = options.level.value_or(1);
  if (!chosenVersion(content, options)) return {};
  ContentList segments = allSegments(content, exact);
  std::erase_if(segments, [](const ContentObject* segment) { return !segment->time; });
  if (!exact.kind && !segments.empty()) {
    // The walk meets Video first.
    const ObjectKind first = segments.front()->kind;
    std::erase_if(segments, [&](const ContentObject* segment) { return segment->kind != first; });
  }
  std::stable_sort(segments.begin(), segments.end(),
                   [](const ContentObject* a, const ContentObject* b) {
                     return a->time->start < b->time->start;
                   });
  return segments;
}

std::vector<ContentWord> spokenWords(const Content& content, const ExportOptions& options) {
  std::vector<ContentWord> words;
  const ContentObject* version = chosenVersion(content, options);
  if (!version) return words;
  for (const ContentObject* below : content.below(*version)) {
    const ContentField* list = below->field("TranscriptWordList");
    if (below->kind == ObjectKind::Transcript && list) words = list->words;
  }
  return spoken(std::move(words));
}

std::vector<ContentWord> spoken(std::vector<ContentWord> words) {
  for (ContentWord& word : words) word.text = oneLine(word.text);
  std::erase_if(words, [](const ContentWord& word) { return word.text.empty(); });
  std::stable_sort(words.begin(), words.end(),
                   [](const ContentWord& a, const ContentWord& b) { return a.start < b.start; });
  return words;
}

}  // namespace velra
