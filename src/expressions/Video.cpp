// SPDX-License-Identifier: GPL-3.0-or-later
#include "expressions/Video.h"

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "expressions/Audio.h"
#include "objects/AVDocument.h"
#include "objects/MediaObject.h"
#include "platform/UserInterface.h"
#include "protocol/ObjectFactory.h"
#include "schema/SEColl.h"
#include "store/IOManager.h"

namespace velra {

namespace {

constexpr std::string_view kFrameRateField = "FrameRate";

}  // namespace

Video::Video(ApplicationModule& app)
    : ExpressionBase(app, ObjectKind::Video), keyFrame_(app, *this) {}

Video::~Video() {
  const auto& picture = keyFrame_.objKeyframeObject();
  if (picture) picture->ownerGoes(keyFrame_.strFile());
}

double Video::dFrameRate() const {
  const SchemaElement* field = secol().field(kFrameRateField);
  return field && field->bValid() ? toReal(field->vContent()) : 0;
}

void Video::setDFrameRate(double framesPerSecond) {
  SchemaElement* field = secol().field(kFrameRateField);
  if (!field) return;
  if (isEmpty(field->vContent()) || toReal(field->vContent()) != framesPerSecond) {
    return field->assign(framesPerSecond);
  }
  field->setBValid(true);
}

void Video::chooseKeyFrameTime() {
  const auto span = ckGetChunk();
  if (!span) raise(kNoObject);
  SetKeyFrameTime(middleOf(*span));
}

// Only a segment has a key frame; its parent is known before it is read.
void Video::afterLoad() {
  if (!objMainExpr() || io()->bReadsOnly()) return;
  if (dGetKeyFrameTime() < 0) chooseKeyFrameTime();
  InitKeyFrameFile(KeyFrame::Taking::Here);
}

void Video::fieldChanged(const SchemaElement& element) {
  const auto& picture = keyFrame_.objKeyframeObject();
  if (picture && element.strName() == MediaObject::kVideoField) picture->ownerFieldChanged();
}

void Video::openBelow() {
  ExpressionBase::openBelow();
  if (!io()->bReadsOnly()) CreateKeyFrameIcons();
}

// Segments are of the class of what they are part of.
void Video::prepareAsSegmentOf(const ExpressionBase& parent) {
  keyFrame_.setAhead(static_cast<const Video&>(parent).keyFrame_.ahead());
  chooseKeyFrameTime();
}

void Video::finishAsSegment() {
  InitKeyFrameFile(KeyFrame::Taking::Aside);
  CreateKeyFrameIcons();
}

void Video::OpenAudio() {
  const std::string guid = typedText("hasaudio", Message::HasAudioMustBeString);
  if (guid.empty()) return;
  if (const RegisteredRef loaded = document().loadedObject(guid)) {
    const auto audio = as<Audio>(loaded);
    if (audio) {
      objAudio_ = audio;
    } else {
      const std::string mismatch = "Audio: " + app().LoadResString(Message::ClassNameMismatch);
      app().ui.messageBox(mismatch);
      io()->noteLeftOut(guid, mismatch);
    }
    return;
  }
  objAudio_.reset();
  const auto audio = as<Audio>(app().objectFactory->createExpression(ObjectKind::Audio));
  const std::string message =
      audio->strOpen(guid, app().objectFactory->createForm(ObjectKind::Audio), io());
  if (message.empty()) {
    objAudio_ = audio;
  } else {
    app().ui.messageBox(message, BoxKind::Exclamation);
  }
}

}  // namespace velra
