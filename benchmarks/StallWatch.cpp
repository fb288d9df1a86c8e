// SPDX-License-Identifier: GPL-3.0-or-later
#include "StallWatch.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string>

namespace velra::bench {

namespace {

constexpr std::chrono::milliseconds kBeat{1};
constexpr std::chrono::milliseconds kQuiet{60};  // longer than what follows an act lets wait

const QEvent::Type kBeatEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

void settle() {
  for (const auto end = std::chrono::steady_clock::now() + kQuiet;
       std::chrono::steady_clock::now() < end;) {
    QCoreApplication::processEvents(QEventLoop::AllEvents);
    std::this_thread::sleep_for(kBeat / 4);
  }
}

}  // namespace

StallWatch::StallWatch(QWidget& window)
    : times_(::open(("/proc/self/task/" + std::to_string(::gettid()) + "/schedstat").c_str(),
                    O_RDONLY | O_CLOEXEC)) {
  window.installEventFilter(this);
  beats_ = std::jthread([this](const std::stop_token& stop) { beat(stop); });
}

StallWatch::~StallWatch() = default;

void StallWatch::beat(const std::stop_token& stop) {
  while (!stop.stop_requested()) {
    if (!waits_) {
      posted_ = now();
      waits_ = true;
      QCoreApplication::postEvent(this, new QEvent(kBeatEvent));
    }
    std::this_thread::sleep_for(kBeat);
  }
}

void StallWatch::begin() {
  settle();
  longest_ = {};
  longestUnpainted_ = 0;
  seenAt_ = now().alone;
}

void StallWatch::end() {
  settle();
}

bool StallWatch::event(QEvent* event) {
  if (event->type() != kBeatEvent) return QObject::event(event);
  taken();
  return true;
}

bool StallWatch::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::Paint) seen();
  return false;
}

Stall StallWatch::now() const {
  const std::chrono::duration<double, std::milli> clock =
      std::chrono::steady_clock::now().time_since_epoch();
  char text[64] = {};
  static_cast<void>(::pread(times_.number(), text, sizeof(text) - 1, 0));
  char* end = nullptr;
  const double ran = std::strtod(text, &end);       // nanoseconds
  const double waited = std::strtod(end, nullptr);  // for a processor
  return {clock.count(), clock.count() - waited / 1e6, ran / 1e6};
}

void StallWatch::taken() {
  const Stall at = now();
  const Stall stall{at.clock - posted_.clock, at.alone - posted_.alone,
                    at.processor - posted_.processor};
  if (stall.alone > longest_.alone) longest_ = stall;
  // What was seen last may be from before the event was posted.
  seenAt_ = std::max(seenAt_, posted_.alone);
  seen();
  waits_ = false;
}

void StallWatch::seen() {
  const double at = now().alone;
  longestUnpainted_ = std::max(longestUnpainted_, at - seenAt_);
  seenAt_ = at;
}

}  // namespace velra::bench
