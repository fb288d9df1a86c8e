// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <functional>
#include <utility>

#include "widgets/tool/PaintedPartsWidget.h"
#include "widgets/tool/TimelineSlider.h"

namespace velra {

class AdvancedSlider;

/// Paints the timeline and hands mouse and keys to its rules. Up and Down move by one picture (Left
/// and Right are keys of the whole tool), Page Up and Page Down by a page, Home and End to the
/// ends; with Alt, Left and Right select a range, with Shift a stretch of them; Return goes into
/// the selected range.
class AdvancedSliderWidget : public PaintedPartsWidget {
  Q_OBJECT

 public:
  /// The rules must outlive the widget.
  AdvancedSliderWidget(AdvancedSlider& advsld, QWidget* parent);
  ~AdvancedSliderWidget() override;
  AdvancedSliderWidget(const AdvancedSliderWidget&) = delete;
  AdvancedSliderWidget& operator=(const AdvancedSliderWidget&) = delete;

  /// The width that its rules can count, in pixels: their places are 16-bit numbers of twips.
  static int maximumRulesWidth();

  void fitRules() override;

  QSize sizeHint() const override;

  // The slider, for screen readers.
  double seconds() const;
  double firstSecond() const;
  double lastSecond() const;
  double stepSeconds() const;
  QString timeText() const { return timeText_ ? timeText_(seconds()) : QString(); }
  /// How a position is written and spoken.
  void setTimeText(std::function<QString(double)> timeText) { timeText_ = std::move(timeText); }
  void moveTo(double seconds);

  // The ranges.
  int partCount() const override;
  QRect partRect(int part) const override;
  QString partName(int part) const override;
  bool partSelected(int part) const override;
  int currentPart() const override;

 protected:
  int partAt(const QPoint& place) const override;
  void selectPart(int part, int shift) override;
  void openPart(int part) override;
  bool takeKey(const QKeyEvent& event) override;
  void paintParts(QPainter& painter, const QRect& dirty) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void thumbMoved();
  bool moveThumbByKey(int key);
  bool selectByKey(const QKeyEvent& event);

  AdvancedSlider& advsld_;
  QTimer Timer1_;
  TimelineSlider slider_;
  QElapsedTimer sinceAnnounced_;
  std::function<QString(double)> timeText_;
};

}  // namespace velra
