// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/MovieFit.h"

#include <algorithm>

#include "app/ApplicationModule.h"
#include "objects/Version.h"
#include "platform/UserInterface.h"
#include "platform/movie/MovieProbe.h"
#include "protocol/OpenDocument.h"
#include "store/ObjectRegistry.h"

namespace velra {

namespace {

// A movie may be shorter than its Version by this many seconds, and longer by any.
constexpr double kShorterBy = 1.0;

}  // namespace

std::optional<double> durationOf(const ApplicationModule& app, const std::string& movie) {
  double duration = 0;
  const bool awaited = app.ui.openMovie(
      [&](const std::stop_token& stop) { duration = dMovieDuration(movie, stop); });
  if (awaited) return duration;
  app.ui.messageBox(app.messages.inLanguage(kOpeningCancelled), BoxKind::Exclamation);
  return std::nullopt;
}

std::shared_ptr<Version> versionHolding(ObjectRegistry& objects, const DescribedObject& media) {
  for (const auto& [number, object] : objects.sequence()) {
    auto version = as<Version>(object);
    if (!version) continue;
    const ObjectList& children = version->colChilds();
    const bool holds = std::any_of(children.begin(), children.end(),
                                   [&](const ObjectRef& child) { return child.get() == &media; });
    if (holds) return version;
  }
  return nullptr;
}

bool movieFits(const ApplicationModule& app, const DescribedObject& media,
               const std::string& movie) {
  const auto duration = durationOf(app, movie);
  if (!duration) return false;
  if (*duration == 0) {
    app.ui.messageBox(app.LoadResString(Message::FormatNotValid));
    return false;
  }
  const auto version = versionHolding(app.gAVDoc->collObjects(), media);
  if (!version) return true;
  if (version->dDuration() == 0) {
    version->setDDuration(*duration);
  } else if (version->dDuration() - *duration > kShorterBy) {
    app.ui.messageBox(app.LoadResString(Message::DurationDiffers));
    return false;
  }
  return true;
}

}  // namespace velra
