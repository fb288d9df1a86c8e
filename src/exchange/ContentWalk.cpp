// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/ContentWalk.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "exchange/ContentFields.h"
#include "objects/AVDocument.h"
#include "objects/Storage.h"
#include "objects/Version.h"
#include "protocol/ClassRules.h"
#include "schema/SEColl.h"
#include "tool/SegmentChain.h"

namespace velra {

namespace {

// The chain, and behind it what a damaged one does not reach.
ExpressionList inChainOrder(const ExpressionList& segments) {
  ExpressionList ordered = SegmentChain(segments).forward();
  const std::unordered_set<ExpressionRef> reached(ordered.begin(), ordered.end());
  std::copy_if(segments.begin(), segments.end(), std::back_inserter(ordered),
               [&](const ExpressionRef& segment) { return !reached.contains(segment); });
  return ordered;
}

class ContentWalk {
 public:
  ContentWalk(const ApplicationModule& app, const AVDocument& document,
              const std::function<void(std::size_t)>& progress)
      : folder_(strAbsolutePath(folderOf(document.strGUID()))),
        translations_(app.objNaroThematicKeywords.get()),
        progress_(progress) {
    content_.path = strAbsolutePath(document.strGUID());
    content_.schema = strAbsolutePath(app.strXSDPath());
  }

  Content take() { return std::move(content_); }

  /// An object and all below it but for expressions.
  void walk(const DescribedObject& object, std::size_t parent, int number) {
    const std::size_t place = add(object, parent, number);
    if (place == kNoContent) return;
    int next = 0;
    for (const ObjectRef& child : object.colChilds()) walk(*child, place, ++next);
    if (const auto* version = as<const Version>(&object)) walkExpressions(*version, place);
  }

 private:
  void walkExpressions(const Version& version, std::size_t place) {
    const ExpressionRef& video = version.vdMainVideo();
    frameRate_ = video ? rateOf(*video) : 0;
    content_.objects[place].frameRate = frameRate_;
    for (const ExpressionRef& main : {video, version.auMainAudio(), version.trMainTranscript()}) {
      if (main) walkExpression(*main, place, 1, 0);
    }
  }

  void walkExpression(const Expression& expression, std::size_t parent, int number, int level) {
    const std::size_t place = add(expression, parent, number);
    if (place == kNoContent) return;
    describe(expression, level, content_.objects[place]);
    int next = 0;
    for (const ExpressionRef& segment : inChainOrder(expression.colSubExpressions())) {
      walkExpression(*segment, place, ++next, level + 1);
    }
  }

  void describe(const Expression& expression, int level, ContentObject& object) const {
    object.level = level;
    object.frameRate = frameRate_;
    if (const auto chunk = expression.ckGetChunk()) {
      object.time = ContentSpan{chunk->dStart, chunk->dend};
    }
    const ContentField* keyFrame = object.field("Keyframe");
    if (level == 0 || !keyFrame || keyFrame->texts.empty()) return;
    object.picture = strAbsolutePath(keyFrame->texts.front(), folder_);
  }

  static double rateOf(const Expression& video) {
    const SchemaElement* field = std::as_const(video.secol()).field("FrameRate");
    const bool holds = field && field->bValid() && field->tyType() == tyType::Real;
    return holds ? toNumber(toText(field->vContent())).value_or(0) : 0;
  }

  std::string movieOf(const DescribedObject& object, const ContentObject& made) const {
    std::string movie;
    if (const auto* storage = as<const Storage>(&object)) movie = storage->strGetCollocation();
    if (const auto* version = as<const Version>(&object)) movie = version->strGetMediaObjectPath();
    if (isExpression(object.kind())) movie = content_.objects[made.version].movie;
    return movie.empty() ? movie : strAbsolutePath(movie, folder_);
  }

  std::size_t add(const DescribedObject& object, std::size_t parent, int number) {
    if (!met_.insert(&object).second) return kNoContent;
    ContentObject made;
    made.kind = object.kind();
    made.identifier = pathInContent(object.strGUID(), folder_);
    made.title = object.strTitle();
    made.parent = parent;
    made.number = number;
    const std::size_t place = content_.objects.size();
    if (made.kind == ObjectKind::Version) {
      made.version = place;
    } else if (parent != kNoContent) {
      made.version = content_.objects[parent].version;
    }
    made.fields = contentFieldsOf(object, folder_);
    if (made.kind == ObjectKind::AVDocument) translations_.translate(made.fields);
    relate(made);
    made.movie = movieOf(object, made);
    content_.objects.push_back(std::move(made));
    if (progress_) progress_(place + 1);
    return place;
  }

  // Identifiers that stand in a field of text count from the document's folder like all others.
  void relate(ContentObject& made) const {
    const ClassRules& rules = rulesOf(made.kind);
    for (ContentField& field : made.fields) {
      const std::string lower = asciiLower(field.name);
      const auto& single = rules.singleReferences;
      const bool refers = field.name == rules.identityField || lower == "hasaudiotranscript" ||
                          std::find(single.begin(), single.end(), lower) != single.end();
      if (!refers || field.type != tyType::String) continue;
      field.linking = true;
      for (std::string& text : field.texts) text = pathInContent(text, folder_);
    }
  }

  std::string folder_;  // the document's
  VocabularyTranslations translations_;
  const std::function<void(std::size_t)>& progress_;
  Content content_;
  std::unordered_set<const DescribedObject*> met_;
  double frameRate_ = 0;  // of the Version that the walk is in
};

}  // namespace

Content contentOf(const ApplicationModule& app, const AVDocument& document,
                  const std::function<void(std::size_t)>& progress) {
  ContentWalk walk(app, document, progress);
  walk.walk(document, kNoContent, 1);
  return walk.take();
}

}  // namespace velra
