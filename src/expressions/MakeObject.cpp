// SPDX-License-Identifier: GPL-3.0-or-later
#include "expressions/MakeObject.h"

#include "expressions/Audio.h"
#include "expressions/Transcript.h"
#include "expressions/Video.h"
#include "objects/AVDocument.h"
#include "objects/Media.h"
#include "objects/Storage.h"
#include "objects/Version.h"

namespace velra {

ObjectRef makeObject(ApplicationModule& app, ObjectKind kind) {
  if (kind == ObjectKind::AVDocument) return std::make_shared<AVDocument>(app);
  if (kind == ObjectKind::Version) return std::make_shared<Version>(app);
  if (kind == ObjectKind::Media) return std::make_shared<Media>(app);
  if (kind == ObjectKind::Storage) return std::make_shared<Storage>(app);
  return makeExpression(app, kind);
}

ExpressionRef makeExpression(ApplicationModule& app, ObjectKind kind) {
  if (kind == ObjectKind::Video) return std::make_shared<Video>(app);
  if (kind == ObjectKind::Audio) return std::make_shared<Audio>(app);
  if (kind == ObjectKind::Transcript) return std::make_shared<Transcript>(app);
  return nullptr;
}

}  // namespace velra
