// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/Player.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/UserInterface.h"
#include "platform/files/Files.h"
#include "protocol/VideoExpression.h"
#include "tool/AdvancedSlider.h"
#include "tool/ToolFace.h"
#include "tool/TranscriptView.h"
#include "values/TimeCode.h"

namespace velra {

namespace {

double numberOf(const std::string& text) {
  const auto number = toNumber(text);
  if (!number) raise(kTypeMismatch, text);
  return *number;
}

}  // namespace

Player::Player(ExpressionRef obj, Parts parts) : obj_(std::move(obj)), parts_(std::move(parts)) {}

MediaGraph& Player::objMediaControl() const {
  if (!objMediaControl_) raise(kNoObject);
  return *objMediaControl_;
}

Chunk& Player::ckChunk() const {
  if (!ckChunk_) raise(kNoObject);
  return *ckChunk_;
}

bool Player::LoadMovie(const std::string& path) {
  bPlaying_ = false;
  if (path.empty()) {
    parts_.app.ui.messageBox(parts_.app.LoadResString(Message::ItemNotSelected));
    ckChunk_ = obj_->ckGetChunk();
    return true;
  }
  if (!bFileExists(path)) return refuse(parts_.app.LoadResString(Message::MovieNotFound), path);
  auto graph = parts_.makeGraph();
  std::string reason;
  const bool awaited = parts_.app.ui.openMovie(
      [&](const std::stop_token& stop) { reason = graph->RenderFile(path, stop); });
  if (!awaited) reason = kOpeningCancelled;
  if (!reason.empty()) return refuse(reason, path);
  objMediaControl_ = std::move(graph);
  parts_.face.movieOpens(*objMediaControl_);
  measureFrameRate();
  takeSpan();
  return true;
}

bool Player::refuse(const std::string& reason, const std::string& path) {
  parts_.app.ui.messageBox(parts_.app.messages.inLanguage(reason) + "\n" + path,
                           BoxKind::Exclamation);
  return false;
}

void Player::measureFrameRate() {
  const double frame = objMediaControl_->AvgTimePerFrame();
  if (frame <= 0) return;
  dFrameRate_ = 1 / frame;
  auto* video = as<VideoExpression>(obj_.get());
  if (video && video->dFrameRate() != dFrameRate_) video->setDFrameRate(dFrameRate_);
}

void Player::takeSpan() {
  ckChunk_ = obj_->ckGetChunk();
  if (!ckChunk_) return;
  const double duration = objMediaControl_->Duration();
  // 0 is no length but an unknown one, and says nothing about the stored end.
  if (duration > 0 && ckChunk_->dStart + duration < ckChunk_->dend) ckChunk_->dend = duration;
  if (ckChunk_->dend >= 0 && ckChunk_->dStart >= 0) showStart();
}

double Player::withinMovie(double seconds) const {
  const double duration = objMediaControl().Duration();
  if (duration > 0 && seconds > duration) return duration;
  return std::max(seconds, 0.0);
}

void Player::showStart() {
  objMediaControl_->setCurrentPosition(ckChunk_->dStart);
  objMediaControl_->Pause();
  bPlaying_ = false;
  parts_.face.showTimeCode(TimeToText(CurrentPosition()));
  parts_.transcript.UpdateTranscriptText(CurrentPosition(), true);
}

void Player::ClosePlayer() try {
  bPlaying_ = false;
  parts_.face.runPendingEvents();
  if (!objMediaControl_) return;
  objMediaControl_->Stop();
  parts_.face.runTimer1(false);
  parts_.face.movieCloses();
  // The sound card takes some 50 ms to let go.
  auto movie = std::move(objMediaControl_);
  parts_.app.ui.workAside(parts_.app.LoadResString(Message::ClosingMovie),
                          [&movie] { movie.reset(); });
} catch (const RunTimeError&) {
  // The form closes whatever the movie says.
}

void Player::SeekTo(double seconds) {
  MediaGraph& movie = objMediaControl();
  parts_.advsld.setDPosition(seconds);
  movie.setCurrentPosition(seconds);
  movie.Pause();
  parts_.transcript.UpdateTranscriptText(movie.CurrentPosition(), true);
  parts_.face.showTimeCode(TimeToText(movie.CurrentPosition()));
  bPlaying_ = runs_ = false;
}

void Player::cmdPlay() {
  if (!objMediaControl_) return;
  objMediaControl_->Run();
  bPlaying_ = runs_ = true;
  parts_.face.runTimer1(true);
}

void Player::cmdPause() {
  if (!objMediaControl_) return;
  objMediaControl_->Pause();
  bPlaying_ = runs_ = false;
}

void Player::cmdStop() {
  if (!objMediaControl_) return;
  objMediaControl_->Stop();
  runs_ = false;
  parts_.face.runTimer1(false);
}

void Player::PlayOrPause() {
  runs_ ? cmdPause() : cmdPlay();
}

void Player::step(int frames) {
  if (!objMediaControl_) return;
  const double position = CurrentPosition();
  const bool forward = frames > 0;
  const double bound = forward ? ckChunk().dend : ckChunk().dStart;
  if (position == bound) return;
  // Positions are no whole numbers of frames from the bound, so that the last step is shorter. Only
  // the very bound stops: a position already behind it steps on.
  const double next = position + frames * objMediaControl_->AvgTimePerFrame();
  const bool passes = forward ? position < bound && next > bound : position > bound && next < bound;
  SeekTo(withinMovie(passes ? bound : next));
  announcePosition();
}

void Player::Timer1() {
  const double position = CurrentPosition();
  parts_.advsld.setDPosition(position);
  parts_.transcript.UpdateTranscriptText(position, false);
  parts_.face.showTimeCode(TimeToText(CurrentPosition()));
}

void Player::announcePosition() {
  if (objMediaControl_) parts_.face.announceTime(TimeToText(CurrentPosition()));
}

std::string Player::TimeToText(double seconds) const {
  return timeCodeText(SplitTimeCode(seconds, dFrameRate_));
}

double Player::TextToTime(const std::string& text) const {
  const std::vector<std::string> fields = split(text, ':');
  if (fields.size() != TimeCode().size()) raise(kSubscriptOutOfRange, text);
  const double seconds =
      numberOf(fields[0]) * 3600 + numberOf(fields[1]) * 60 + numberOf(fields[2]);
  if (dFrameRate_ == 0) raise(kDivisionByZero);
  return seconds + numberOf(fields[3]) / dFrameRate_;
}

}  // namespace velra
