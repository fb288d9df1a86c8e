// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>

#include "widgets/main/KeyFrameCache.h"
#include "widgets/tool/PaintedPartsWidget.h"

namespace velra {

class Framelist;

/// Paints the strip of pictures and hands mouse and keys to its rules. Left and Right select the
/// picture beside, with Shift a stretch; Home and End the first and last; Return goes into it. The
/// rules' own scroll bar reaches some thirty pictures and raises an error behind them, so that the
/// widget is as wide as its pictures and never scrolls itself.
class FramelistWidget : public PaintedPartsWidget {
  Q_OBJECT

 public:
  /// The rules must outlive the widget.
  FramelistWidget(Framelist& strip, QWidget* parent);
  ~FramelistWidget() override;
  FramelistWidget(const FramelistWidget&) = delete;
  FramelistWidget& operator=(const FramelistWidget&) = delete;

  void fitRules() override;
  /// Takes a height, and a width if the pictures do not need more.
  void fillRoom(const QSize& room);
  int partWidth() const;

  QSize sizeHint() const override;
  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

  int partCount() const override;
  QRect partRect(int part) const override;
  QString partName(int part) const override;
  bool partSelected(int part) const override;
  int currentPart() const override;

 signals:
  /// A key has selected it.
  void partReached(int part);

 protected:
  int partAt(const QPoint& place) const override;
  void selectPart(int part, int shift) override;
  void openPart(int part) override;
  bool takeKey(const QKeyEvent& event) override;
  void paintParts(QPainter& painter, const QRect& dirty) override;
  void moveEvent(QMoveEvent* event) override;

 private:
  void grow();
  void paintPicture(QPainter& painter, int part);
  QRect pictureRect(int part) const;
  void readPictures();
  std::int16_t imageForKey(int key) const;

  Framelist& strip_;
  int room_ = 0;  // the width that is there, in pixels
  KeyFrameCache pictures_;
  QTimer reading_;
};

}  // namespace velra
