// SPDX-License-Identifier: GPL-3.0-or-later
#include "MeasuredTool.h"

#include <QApplication>
#include <QMouseEvent>
#include <utility>

#include "shell/LoadedVideoForm.h"

namespace velra::bench {

MeasuredWindow::MeasuredWindow(const ApplicationModule& app, Act act)
    : VideoFormWindow(app, nullptr), act_(std::move(act)) {}

void MeasuredWindow::build(LoadedVideoForm& form) {
  form_ = &form;
  VideoFormWindow::build(form);
}

void MeasuredWindow::showModally() {
  resize(kSize);
  show();
  QApplication::processEvents();
  act_(*this);
}

ExpressionTool& MeasuredWindow::tool() {
  return form_->tool();
}

MeasuredTool::MeasuredTool(ObjectKind kind, double seconds) : session(*this, kind) {
  session.main->children.clear();
  session.main->SetChunk(0, seconds);
  session.movie.duration = seconds;
}

std::unique_ptr<VideoFormFace> MeasuredTool::makeVideoForm(FormOwner&) {
  return std::make_unique<MeasuredWindow>(session.app, act);
}

void click(QWidget& widget, const QPoint& place, Qt::KeyboardModifiers modifiers) {
  for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, place, widget.mapToGlobal(place), Qt::LeftButton, Qt::LeftButton,
                      modifiers);
    QApplication::sendEvent(&widget, &event);
  }
}

Measure painted(const std::string& name, int rounds, const std::function<void(int)>& action,
                double budget) {
  Times times;
  for (int round = 0; round < rounds; ++round) {
    times.takeWork([&] {
      action(round);
      QApplication::processEvents();
    });
  }
  return {name + ", p95", times.p95(), "ms", budget};
}

}  // namespace velra::bench
