#include "widgets/TreeIconPainter.h"

#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

#include "shell/TreeIcons.h"
#include "widgets/Icons.h"
#include "widgets/QtText.h"

namespace velra {

namespace {

QImage readPicture(const Picture& picture, const QSize& size) {
  if (picture.empty()) return {};
  QImageReader reader(pathToQString(picture.path));
  reader.setScaledSize(size);
  return reader.read();
}

}  // namespace

QIcon TreeIconPainter::icon(const std::string& key) {
  if (const Picture* picture = icons_.keyFrame(key)) return keyFrameIcon(key, *picture);
  return namedIcon(key);
}

QIcon TreeIconPainter::namedIcon(const std::string& key) {
  const QString name = toQString(key);
  auto found = named_.find(name);
  if (found == named_.end()) found = named_.insert(name, ownIcon(name));
  return *found;
}

QIcon TreeIconPainter::keyFrameIcon(const std::string& key, const Picture& picture) {
  const QString name = toQString(key);
  if (const QIcon* kept = keyFrames_.object(name)) return *kept;

  const qreal ratio = qGuiApp->devicePixelRatio();
  const QSize pixels = (QSizeF(iconSize()) * ratio).toSize();
  QPixmap pixmap(pixels);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  {
    QPainter painter(&pixmap);
    const QRect whole(QPoint(), iconSize());
    const QImage image = readPicture(picture, pixels);
    if (image.isNull()) {
      namedIcon("Video").paint(&painter, whole);
    } else {
      painter.drawImage(whole, image);
    }
    QSvgRenderer(ownIconPath(QStringLiteral("RedFrame"))).render(&painter, whole);
  }
  QIcon made(pixmap);
  keyFrames_.insert(name, new QIcon(made));
  return made;
}

}  // namespace velra
