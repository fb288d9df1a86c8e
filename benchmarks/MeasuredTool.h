// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <functional>
#include <memory>
#include <string>

#include "Measure.h"
#include "support/ToolSession.h"
#include "widgets/tool/VideoFormWindow.h"

class QPoint;

namespace velra {
class ExpressionTool;
}

namespace velra::bench {

constexpr double kPaintBudget = 8;  // milliseconds: half of a frame

/// The tool's window. In place of waiting for a person it runs what is measured.
class MeasuredWindow : public VideoFormWindow {
 public:
  using Act = std::function<void(MeasuredWindow&)>;

  static constexpr QSize kSize{1600, 700};

  MeasuredWindow(const ApplicationModule& app, Act act);

  void build(LoadedVideoForm& form) override;
  void showModally() override;
  ExpressionTool& tool();

 private:
  Act act_;
  LoadedVideoForm* form_ = nullptr;
};

/// The tool over a scripted movie and an expression of its length, without segments.
class MeasuredTool : public VideoFormFaces {
 public:
  MeasuredTool(ObjectKind kind, double seconds);
  std::unique_ptr<VideoFormFace> makeVideoForm(FormOwner& owner) override;

  test::ToolSession session;
  MeasuredWindow::Act act;
};

void click(QWidget& widget, const QPoint& place, Qt::KeyboardModifiers modifiers);

/// The p95 of an action together with the painting that it asks for, in processor time.
Measure painted(const std::string& name, int rounds, const std::function<void(int)>& action,
                double budget = kPaintBudget);

}  // namespace velra::bench
