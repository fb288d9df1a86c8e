#pragma once

#include <QWidget>

#include "widgets/KeyFrameCache.h"
#include "widgets/PaintedParts.h"

class QPainter;
class QScrollBar;

namespace velra {

class Framelist;

/// Paints the strip of pictures and hands mouse and keys to its rules. Left and Right select the
/// picture beside, with Shift a stretch; Home and End the first and last; Return goes into it.
class FramelistWidget : public QWidget, public PaintedParts {
  Q_OBJECT

 public:
  /// The rules must outlive the widget.
  FramelistWidget(Framelist& strip, QWidget* parent);
  ~FramelistWidget() override;

  /// Tells the rules the width. A hidden widget hears of its resizing only when it shows.
  void fitRules();

  QSize sizeHint() const override;

  int partCount() const override;
  QRect partRect(int part) const override;
  QString partName(int part) const override;
  bool partSelected(int part) const override;
  int currentPart() const override;
  void pressPart(int part) override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void rulesChanged();
  void showScrollBar();
  void paintPicture(QPainter& painter, int part);
  std::int16_t imageAt(const QPoint& place) const;
  bool selectByKey(const QKeyEvent& event);

  Framelist& strip_;
  QScrollBar* HScroll1_;
  KeyFrameCache pictures_;
  int announcedCount_ = 0;
  int announcedPart_ = -1;
};

}  // namespace velra
