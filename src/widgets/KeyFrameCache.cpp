#include "widgets/KeyFrameCache.h"

#include <QImageReader>

#include "values/Picture.h"
#include "widgets/QtText.h"

namespace velra {

namespace {

constexpr qsizetype kBytes = qsizetype{24} * 1024 * 1024;
constexpr int kBytesOfAPixel = 4;

QPixmap read(const Picture& picture, const QSize& size) {
  QImageReader reader(pathToQString(picture.path));
  const QImage image = reader.read();
  if (image.isNull()) return {};
  return QPixmap::fromImage(image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

}  // namespace

KeyFrameCache::KeyFrameCache() : pixmaps_(kBytes) {}

QPixmap KeyFrameCache::pixmap(const Picture& picture, const QSize& size) {
  if (picture.empty()) return {};
  const QString key =
      QStringLiteral("%1 %2 ").arg(size.width()).arg(size.height()) + pathToQString(picture.path);
  if (const QPixmap* known = pixmaps_.object(key)) return *known;
  QPixmap fresh = read(picture, size);
  const qsizetype cost = qsizetype{kBytesOfAPixel} * size.width() * size.height();
  pixmaps_.insert(key, new QPixmap(fresh), cost);  // owned by the cache
  return fresh;
}

}  // namespace velra
