// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace velra {

class MoviePictures;

/// Shows the movie's present picture, stretched over all of it.
class VideoPictureWidget : public QWidget {
  Q_OBJECT

 public:
  /// The pictures outlive it.
  VideoPictureWidget(MoviePictures& pictures, QWidget* parent);

 Q_SIGNALS:
  void doubleClicked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  MoviePictures& pictures_;
};

}  // namespace velra
