// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace velra {

class MoviePictures;

/// The movie's present picture in a window of its own, in the movie's proportions. F11 fills the
/// screen with it and back, Esc closes it; all other keys are the tool's.
class LargePicture : public QWidget {
  Q_OBJECT

 public:
  /// Unseen. The pictures outlive it; `owner` may be a modal window.
  LargePicture(MoviePictures& pictures, QWidget* owner);

  /// Shows it, or brings it to the front.
  void present();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  void chooseSize();
  QRect place() const;

  MoviePictures& pictures_;
  bool escPressed_ = false;
  bool hasSize_ = false;  // from the first showing on, as the person likes it
};

}  // namespace velra
