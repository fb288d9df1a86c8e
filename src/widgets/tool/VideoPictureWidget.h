// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <atomic>

namespace velra {

class MediaGraph;

/// Shows the movie's present picture, stretched over all of it; black without a movie.
class VideoPictureWidget : public QWidget {
  Q_OBJECT

 public:
  explicit VideoPictureWidget(QWidget* parent);

  /// From now on the pictures of this movie, which must stay until the next call; null for none.
  void showMovie(MediaGraph* movie);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void noticed();
  void tellSize();

  MediaGraph* movie_ = nullptr;
  std::atomic<bool> updatePending_ = false;  // set by the movie's threads
};

}  // namespace velra
