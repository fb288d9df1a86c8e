// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "widgets/tool/PaintedParts.h"

class QPainter;

namespace velra {

/// What timeline and strip share: a click selects a part and a double click or Return goes into it,
/// its caption is the tool tip, the focus shows as a frame, and screen readers hear what the rules
/// change. Parts count from 0, and -1 means none.
class PaintedPartsWidget : public QWidget, public PaintedParts {
  Q_OBJECT

 public:
  /// Tells the rules the width. A hidden widget hears of its resizing only when it shows.
  virtual void fitRules() = 0;

  void pressPart(int part) override { selectPart(part, 0); }

 signals:
  void currentPartChanged(int part);

 protected:
  /// `name` is what screen readers say.
  PaintedPartsWidget(const QString& name, QWidget* parent);

  virtual int partAt(const QPoint& place) const = 0;
  /// A click with the modifiers as the rules count them.
  virtual void selectPart(int part, int shift) = 0;
  /// A double click.
  virtual void openPart(int part) = 0;
  /// True for a key that does something here.
  virtual bool takeKey(const QKeyEvent& event) = 0;
  /// Paints at least what lies in the dirty place.
  virtual void paintParts(QPainter& painter, const QRect& dirty) = 0;

  /// Paints anew and says what is another than before.
  void rulesChanged();

  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  int announcedCount_ = 0;
  int announcedPart_ = -1;
};

}  // namespace velra
