// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace velra {

/// The handle between the two trees, dragged with the mouse or moved with the arrow keys. It shows
/// nothing but that it has the focus, and moves nothing by itself.
class SplitterHandle : public QWidget {
  Q_OBJECT

 public:
  explicit SplitterHandle(QWidget* parent);

 Q_SIGNALS:
  void dragStarted();
  /// The wanted left edge, in pixels of the parent.
  void dragged(int left);
  void dragEnded();
  /// By keyboard, in pixels; negative to the left.
  void stepped(int pixels);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool dragging_ = false;
};

}  // namespace velra
