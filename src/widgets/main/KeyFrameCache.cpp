// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main/KeyFrameCache.h"

#include <QImageReader>

#include "values/Picture.h"
#include "widgets/QtText.h"

namespace velra {

namespace {

constexpr qsizetype kBytes = qsizetype{24} * 1024 * 1024;
constexpr int kBytesOfAPixel = 4;

QString keyOf(const Picture& picture, const QSize& size) {
  return QStringLiteral("%1 %2 ").arg(size.width()).arg(size.height()) +
         pathToQString(picture.path);
}

QPixmap pixmapOf(const Picture& picture, const QSize& size) {
  if (picture.empty()) return {};
  QImageReader reader(pathToQString(picture.path));
  const QImage image = reader.read();
  if (image.isNull()) return {};
  return QPixmap::fromImage(image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

}  // namespace

KeyFrameCache::KeyFrameCache() : pixmaps_(kBytes) {}

const QPixmap* KeyFrameCache::find(const Picture& picture, const QSize& size) const {
  return pixmaps_.object(keyOf(picture, size));
}

void KeyFrameCache::read(const Picture& picture, const QSize& size) {
  const qsizetype cost = qsizetype{kBytesOfAPixel} * size.width() * size.height();
  pixmaps_.insert(keyOf(picture, size), new QPixmap(pixmapOf(picture, size)), cost);
}

}  // namespace velra
