// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/progress/WorkBar.h"

#include <QLayout>
#include <utility>

#include "widgets/Texts.h"

namespace velra {

namespace {

constexpr int kUnnoticedWork = 500;  // milliseconds
constexpr int kRepaintMilliseconds = 45;
// The first and the last one come sooner: what is before and behind a work, as the end of a dialog,
// paints nothing either.
constexpr int kOuterRepaintMilliseconds = 20;
constexpr int kBarWidth = 100;  // pixels
constexpr int kFull = 1000;

}  // namespace

WorkBar::WorkBar(QWidget* parent) : QProgressBar(parent) {
  setObjectName(QStringLiteral("prgWork"));
  setAccessibleName(Texts::tr("Progress"));
  setRange(0, kFull);
  setFixedWidth(kBarWidth);
  hide();
  hiding_.setSingleShot(true);
  connect(&hiding_, &QTimer::timeout, this, [this] {
    sinceBegun_.invalidate();
    hide();
  });
}

void WorkBar::follow(std::size_t done, std::size_t total) {
  if (total == 0) return end();
  hiding_.stop();
  if (!sinceBegun_.isValid()) {
    sinceBegun_.start();
    sinceDrawn_.start();
    untilDrawn_ = kOuterRepaintMilliseconds;
    setValue(0);
    allToDraw_ = true;
  }
  if (sinceDrawn_.elapsed() < untilDrawn_) return;
  // Work that follows on other work does not begin anew for the eye.
  if (done > 0) setValue(static_cast<int>(kFull * done / total));
  if (isHidden() && sinceBegun_.elapsed() >= kUnnoticedWork) {
    show();
    parentWidget()->layout()->activate();  // its place, which comes by an event otherwise
  }
  paintWindow();
}

void WorkBar::end() {
  if (sinceBegun_.isValid() && sinceDrawn_.elapsed() >= kOuterRepaintMilliseconds) paintWindow();
  hiding_.start(0);
}

// The toolkit leaves out what covers its place wholly, as the trees do, unless it is told. What a
// dialog has left on them goes with the first painting; they do not change while work lasts.
void WorkBar::paintWindow() {
  if (std::exchange(allToDraw_, false)) {
    for (QWidget* part : window()->findChildren<QWidget*>()) part->update();
  }
  window()->repaint();
  sinceDrawn_.start();
  untilDrawn_ = kRepaintMilliseconds;
}

}  // namespace velra
