// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

namespace velra {

class Framelist;
class FramelistWidget;

/// The form's window onto the strip of pictures, which is as long as its pictures are many. It is
/// scrolled by its bar and by the wheel, and follows what is selected elsewhere or by keys.
class StripView : public QScrollArea {
 public:
  /// The rules must outlive the view.
  StripView(Framelist& strip, QWidget* parent);

  /// Tells the strip the room that there is. A hidden view hears of its resizing only when it
  /// shows.
  void fit();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  QRect shown() const;
  void reveal(int part);
  void revealIfHidden(int part);

  FramelistWidget* strip_;
};

}  // namespace velra
