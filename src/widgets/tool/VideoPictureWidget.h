// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <atomic>

#include "platform/movie/MediaGraph.h"

namespace velra {

/// Shows the movie's present picture, stretched over all of it, or that it cannot be read any more;
/// black without a movie.
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
  void noticed(MediaGraph::Notice notice);
  void tellSize();

  MediaGraph* movie_ = nullptr;
  // Set by the movie's threads.
  std::atomic<bool> updatePending_ = false;
  std::atomic<bool> failed_ = false;
};

}  // namespace velra
