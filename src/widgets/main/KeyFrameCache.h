// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCache>
#include <QPixmap>
#include <QSize>
#include <QString>

namespace velra {

struct Picture;

/// The pictures of the strip in the size in which they are painted, read from their files when they
/// are first in view. It keeps those drawn last, up to a bound in bytes.
class KeyFrameCache {
 public:
  KeyFrameCache();

  /// `size` in pixels of the screen. Null when it has not been read; a null pixmap for no picture
  /// and for a file that cannot be read. It lives until the next reading.
  const QPixmap* find(const Picture& picture, const QSize& size) const;

  void read(const Picture& picture, const QSize& size);

 private:
  QCache<QString, QPixmap> pixmaps_;
};

}  // namespace velra
