// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QSize>
#include <atomic>
#include <map>

#include "platform/movie/MediaGraph.h"

class QPainter;
class QRect;
class QWidget;

namespace velra {

/// The present picture of a movie for all widgets that show it.
class MoviePictures : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// From now on the pictures of this movie, which must stay until the next call; null for none.
  void showMovie(MediaGraph* movie);

  /// The size as which the movie is meant to be seen; empty without a movie or its pictures.
  QSize size() const;

  /// A view shows them in so many pixels; an empty size takes it out. Pictures of play, which pass
  /// quickly, come in the size of the largest view.
  void showIn(const QWidget* view, const QSize& pixels);

  /// The picture stretched over a place, or that it cannot be read any more; black without a movie.
  void paint(QPainter& painter, const QRect& place) const;

 Q_SIGNALS:
  void changed();

 private:
  void noticed(MediaGraph::Notice notice);
  void tellSize();

  MediaGraph* movie_ = nullptr;
  std::map<const QWidget*, QSize> views_;
  // Set by the movie's threads.
  std::atomic<bool> updatePending_ = false;
  std::atomic<bool> failed_ = false;
};

}  // namespace velra
