#include "widgets/TreeIconPainter.h"

#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <functional>

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

// One size for all, so that the texts of a level stand in one line; and the same picture for a
// selected row, which a toolkit's tint would make unreadable.
QIcon drawn(const std::function<void(QPainter&, const QRect&)>& draw) {
  const qreal ratio = qGuiApp->devicePixelRatio();
  QPixmap pixmap((QSizeF(TreeIconPainter::iconSize()) * ratio).toSize());
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  draw(painter, QRect(QPoint(), TreeIconPainter::iconSize()));
  painter.end();
  QIcon icon(pixmap);
  icon.addPixmap(pixmap, QIcon::Selected);
  return icon;
}

}  // namespace

QIcon TreeIconPainter::icon(const std::string& key) {
  const Picture* picture = icons_.keyFrame(key);
  auto& kept = picture ? keyFrames_ : named_;
  const QString name = toQString(key);
  if (const QIcon* icon = kept.object(name)) return *icon;
  const QIcon made = picture ? keyFrameIcon(*picture) : namedIcon(name);
  kept.insert(name, new QIcon(made));
  return made;
}

QIcon TreeIconPainter::namedIcon(const QString& name) {
  return drawn(
      [&](QPainter& painter, const QRect& whole) { ownIcon(name).paint(&painter, whole); });
}

QIcon TreeIconPainter::keyFrameIcon(const Picture& picture) {
  return drawn([&](QPainter& painter, const QRect& whole) {
    const QImage image = readPicture(picture, whole.size() * qGuiApp->devicePixelRatio());
    if (image.isNull()) {
      ownIcon(QStringLiteral("Video")).paint(&painter, whole);
    } else {
      painter.drawImage(whole, image);
    }
    QSvgRenderer(ownIconPath(QStringLiteral("RedFrame"))).render(&painter, whole);
  });
}

}  // namespace velra
