#pragma once

#include "widgets/KeyFrameCache.h"
#include "widgets/PaintedPartsWidget.h"

class QScrollBar;

namespace velra {

class Framelist;

/// Paints the strip of pictures and hands mouse and keys to its rules. Left and Right select the
/// picture beside, with Shift a stretch; Home and End the first and last; Return goes into it.
class FramelistWidget : public PaintedPartsWidget {
  Q_OBJECT

 public:
  /// The rules must outlive the widget.
  FramelistWidget(Framelist& strip, QWidget* parent);
  ~FramelistWidget() override;

  void fitRules() override;

  QSize sizeHint() const override;

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
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void showScrollBar();
  void paintPicture(QPainter& painter, int part);
  std::int16_t imageForKey(int key) const;

  Framelist& strip_;
  QScrollBar* HScroll1_;
  KeyFrameCache pictures_;
};

}  // namespace velra
