#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include "widgets/PaintedParts.h"

class QStyleOptionSlider;

namespace velra {

class AdvancedSlider;

/// Paints the timeline and hands mouse and keys to its rules. Left and Right move the thumb, Page
/// Up and Page Down by a page, Home and End to the ends; with Ctrl, Left and Right select a range,
/// with Shift a stretch of them; Return goes into the selected range.
class AdvancedSliderWidget : public QWidget, public PaintedParts {
  Q_OBJECT

 public:
  /// The rules must outlive the widget.
  AdvancedSliderWidget(AdvancedSlider& advsld, QWidget* parent);
  ~AdvancedSliderWidget() override;

  /// The width that its rules can count, in pixels: their places are 16-bit numbers of twips.
  static int maximumRulesWidth();

  /// Tells the rules the width. A hidden widget hears of its resizing only when it shows.
  void fitRules();

  QSize sizeHint() const override;

  // The slider, for screen readers.
  double seconds() const;
  double firstSecond() const;
  double lastSecond() const;
  double stepSeconds() const;
  void moveTo(double seconds);

  // The ranges.
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
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void rulesChanged();
  void thumbMoved();
  std::int16_t rangeAt(const QPoint& place) const;
  QStyleOptionSlider sliderOption() const;
  QRect sliderRect() const;
  int thumbLength() const;
  std::int32_t valueAt(int x) const;
  void page(int direction);
  bool moveThumbByKey(int key);
  bool selectByKey(int key, Qt::KeyboardModifiers modifiers);

  AdvancedSlider& advsld_;
  QTimer Timer1_;
  QElapsedTimer sinceAnnounced_;
  int announcedCount_ = 0;
  int announcedPart_ = -1;
  bool dragging_ = false;
  int grip_ = 0;  // from the thumb's centre to where the mouse holds it
};

}  // namespace velra
