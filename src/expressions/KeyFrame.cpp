// SPDX-License-Identifier: GPL-3.0-or-later
#include "expressions/KeyFrame.h"

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "expressions/KeyFramesAhead.h"
#include "expressions/Video.h"
#include "objects/MediaObject.h"
#include "platform/UserInterface.h"
#include "platform/files/BitmapCheck.h"
#include "platform/files/Files.h"
#include "platform/movie/FrameGrabber.h"
#include "protocol/ClassRules.h"
#include "protocol/OpenDocument.h"
#include "schema/SEColl.h"
#include "store/DataFolder.h"
#include "store/IOManager.h"
#include "store/ObjectRegistry.h"

namespace velra {

namespace {

// The small picture: 750 by 1000 twips at 15 twips a pixel.
constexpr int kSmallWidth = 50;
constexpr int kSmallHeight = 67;

SchemaElement* assignedField(SEColl& fields) {
  for (SchemaElement& field : fields) {
    if (field.bValid() && field.strName() == kKeyFrameField) return &field;
  }
  return nullptr;
}

}  // namespace

double middleOf(const Chunk& chunk) {
  return (chunk.dend - chunk.dStart) / 2 + chunk.dStart;
}

double KeyFrame::dGetKeyFrameTime() const {
  const SchemaElement* field = assignedField(video_.secol());
  const auto chunk = field ? asChunk(field->vContent()) : nullptr;
  if (!chunk) return -1;
  if (chunk->dStart >= 0) return chunk->dStart;
  const auto span = video_.ckGetChunk();
  if (!span) raise(kNoObject);
  return middleOf(*span);
}

void KeyFrame::SetKeyFrameTime(double seconds) {
  SchemaElement* field = video_.secol().field(kKeyFrameField);
  if (!field) return;
  auto chunk = field->bValid() ? asChunk(field->vContent()) : nullptr;
  if (!chunk) {
    chunk = std::make_shared<Chunk>();
    field->setVContent(chunk);
  }
  if (chunk->dStart != seconds) {
    chunk->dStart = seconds;
    field->setBChanged(true);
  }
  field->setBValid(true);
}

std::string KeyFrame::strFile() const {
  const SchemaElement* field = assignedField(video_.secol());
  const auto chunk = field ? asChunk(field->vContent()) : nullptr;
  return chunk ? chunk->strFile : std::string();
}

void KeyFrame::InitKeyFrameFile(Taking taking) {
  SchemaElement* field = assignedField(video_.secol());
  const auto chunk = field ? asChunk(field->vContent()) : nullptr;
  if (!chunk) return;
  objKeyframeObject_ = MediaObject::create(app_);
  objKeyframeObject_->strInit(video_.shared_from_this());
  if (!objKeyframeObject_->strGUID().empty()) return;
  const std::string temporary = makeBitmap(taking);
  if (!temporary.empty()) placeBitmap(temporary, *chunk);
  // This tells of the name as well: what is written into the chunk itself nobody hears of.
  field->setBChanged(true);
}

void KeyFrame::placeBitmap(const std::string& temporary, Chunk& chunk) {
  objKeyframeObject_->setStrTypeOfObject(strExtension(temporary));
  const std::string reason =
      video_.io()->bFileSystem() ? moveIntoFolder(temporary, chunk) : std::string();
  objKeyframeObject_->setBChanged(reason.empty());
  if (reason.empty()) return;
  // A full disk costs the picture, not the segment and the work beside it.
  chunk.strFile.clear();
  deleteFile(temporary);
  app_.ui.messageBox(app_.LoadResString(Message::KeyFrameWithoutPicture) + reason,
                     BoxKind::Exclamation);
}

std::string KeyFrame::moveIntoFolder(const std::string& temporary, Chunk& chunk) {
  IOManager& io = *video_.io();
  const std::string document = app_.gAVDoc->strGUID();
  std::string reason = io.strMakeDataFolder(document);
  while (reason.empty()) {
    const std::string taken = chunk.strFile;
    chunk.strFile = io.strCreateGUID(app_.gAVDoc->collObjects(), ObjectKind::MediaObject,
                                     objKeyframeObject_->strTypeOfObject(), document);
    try {
      io.MoveObject(temporary, chunk.strFile);
      return {};
    } catch (const RunTimeError& error) {
      io.withdraw(chunk.strFile);
      // Another program was quicker: the next number is free.
      const bool next = error.number() == kFileAlreadyExists && chunk.strFile != taken;
      if (!next) reason = error.description();
    }
  }
  return reason;
}

void KeyFrame::takeStill(const std::string& movie, const std::string& target, Taking taking) const {
  const auto take = [&, seconds = dGetKeyFrameTime()] { grabFrame(movie, seconds, {}, target); };
  if (taking == Taking::Here) return take();
  app_.ui.workAside(app_.LoadResString(Message::ReadingMovie), take);
}

std::string KeyFrame::makeBitmap(Taking taking) const {
  const std::string movie = video_.strGetMediaObjectPath();
  if (movie.empty()) return {};
  if (!bFileExists(movie)) {
    app_.WarnNotFoundOnce(movie);
    return {};
  }
  std::string target;
  try {
    if (const auto ahead = ahead_.lock()) target = ahead->take(movie, dGetKeyFrameTime());
    if (!target.empty()) return target;
    target = strTempPath() + strMakeGUIDText() + ".bmp";
    takeStill(movie, target, taking);
  } catch (const RunTimeError& error) {
    // A damaged movie or a full disk costs the picture, not the segment; one sentence for each
    // trouble with a movie is enough.
    if (app_.gNotFound.insert(error.description()).second) {
      app_.ui.messageBox(error.description(), BoxKind::Exclamation);
    }
    return {};
  }
  return target;
}

void KeyFrame::CreateKeyFrameIcons() {
  if (!video_.objMainExpr()) return;
  if (!objKeyframeObject_) raise(kNoObject);
  const std::string path = video_.io()->bFileSystem() ? objKeyframeObject_->strGUID() : "";
  picKeyFrame_ = {};
  picKeyFrameSmall_ = {};
  if (path.empty()) return;
  // Absolute, since it is drawn at a time when another folder may be the current one.
  const std::string place = strAbsolutePath(path);
  const auto seen = video_.io()->scans().goodPicture(place);
  video_.io()->guard().noteStamp(place, seen ? *seen : checkBitmap(path));
  picKeyFrame_.path = place;
  picKeyFrameSmall_ = {picKeyFrame_.path, kSmallWidth, kSmallHeight};
}

void KeyFrame::UpdateLocationKeyFrameObject(const std::string& from, const std::string& to) {
  if (!objKeyframeObject_) raise(kNoObject);
  if (objKeyframeObject_->bChanged()) {
    video_.io()->MoveObject(from, to);
  } else {
    video_.io()->CopyObject(from, to);
  }
}

}  // namespace velra
