// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/imports/ImportTarget.h"

#include "base/Paths.h"
#include "exchange/ExchangeFailure.h"
#include "objects/AVDocument.h"
#include "objects/Version.h"
#include "platform/movie/MovieFacts.h"
#include "protocol/VideoExpression.h"

namespace velra {

ImportTarget::ImportTarget(AVDocument& document, const ImportFormat& format,
                           const ImportOptions& options)
    : format_(format), options_(options) {
  if (!options.into.empty()) {
    findNamed(document, options.into);
    version_ = as<Version>(named_->verVersion());
    return;
  }
  const ObjectList& versions = document.colChilds();
  const auto wanted = static_cast<std::size_t>(options.version.value_or(1));
  if (wanted > versions.size()) {
    throw ExchangeFailure("The document has " + std::to_string(versions.size()) +
                          " Versions and no number " + std::to_string(wanted) + ".");
  }
  version_ = as<Version>(versions[wanted - 1]);
  if (!version_ || !usual()) {
    throw ExchangeFailure(format.words ? "The Version has no Transcript to take the words."
                                       : "The Version has no Video, Audio or Transcript.");
  }
}

void ImportTarget::findNamed(AVDocument& document, const std::string& name) {
  const std::string path = strAbsolutePath(name, folderOf(document.strGUID()));
  std::size_t alike = 0;
  for (const auto& [number, object] : document.collObjects().sequence()) {
    auto expression = as<Expression>(object);
    if (!expression) continue;
    const bool isIt = bSamePath(expression->strGUID(), path);
    if (!isIt && expression->strTitle() != name) continue;
    named_ = std::move(expression);
    if (isIt) return;
    ++alike;
  }
  if (alike == 1) return;
  const std::string rest = " Video, Audio or Transcript of the name or path " + name + ".";
  if (alike == 0) throw ExchangeFailure("There is no" + rest);
  throw ExchangeFailure("There is more than one" + rest);
}

ExpressionRef ImportTarget::usual() const {
  if (format_.words) return version_->trMainTranscript();
  for (const ExpressionRef& main :
       {version_->vdMainVideo(), version_->auMainAudio(), version_->trMainTranscript()}) {
    if (main) return main;
  }
  return nullptr;
}

ExpressionRef ImportTarget::expressionFor(std::optional<ObjectKind> kind) const {
  if (named_) return passesOver(kind) ? nullptr : named_;
  if (!kind) return usual();
  return *kind == ObjectKind::Video   ? version_->vdMainVideo()
         : *kind == ObjectKind::Audio ? version_->auMainAudio()
                                      : version_->trMainTranscript();
}

double ImportTarget::rate() const {
  if (options_.rate) return *options_.rate;
  const auto video = version_ ? as<VideoExpression>(version_->vdMainVideo()) : nullptr;
  const double stated = video ? video->dFrameRate() : 0;
  if (stated >= 1 || !version_) return stated;
  const std::string movie = version_->strGetMediaObjectPath();
  return movie.empty() ? 0 : movieFacts(strAbsolutePath(movie)).rate;
}

}  // namespace velra
