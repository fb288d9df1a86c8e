// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main/TreeIconPainter.h"

#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <functional>

#include "shell/TreeIcons.h"
#include "widgets/QtText.h"
#include "widgets/main/Icons.h"

namespace velra {

namespace {

constexpr qreal kPlateCorner = 3;

QImage readPicture(const Picture& picture, const QSize& size) {
  if (picture.empty()) return {};
  QImageReader reader(pathToQString(picture.path));
  reader.setScaledSize(size);
  return reader.read();
}

using Draw = std::function<void(QPainter&, const QRect&)>;

// One size for all, so that the texts of a level stand in one line.
QPixmap drawn(const Draw& draw) {
  const qreal ratio = qGuiApp->devicePixelRatio();
  QPixmap pixmap((QSizeF(TreeIconPainter::iconSize()) * ratio).toSize());
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  draw(painter, QRect(QPoint(), TreeIconPainter::iconSize()));
  return pixmap;
}

// A light plate, on which an icon's own colours can be seen over the colour of a selected row.
void drawPlate(QPainter& painter, const QRect& whole) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(255, 255, 255, 225));
  painter.drawRoundedRect(whole, kPlateCorner, kPlateCorner);
}

// The second picture is for a selected row, which a toolkit's tint would make unreadable.
QIcon iconOf(const Draw& draw, bool plate) {
  QIcon icon(drawn(draw));
  icon.addPixmap(drawn([&](QPainter& painter, const QRect& whole) {
                   if (plate) drawPlate(painter, whole);
                   draw(painter, whole);
                 }),
                 QIcon::Selected);
  return icon;
}

}  // namespace

QIcon TreeIconPainter::icon(const std::string& key) {
  const Picture* picture = icons_.keyFrame(key);
  auto& kept = picture ? keyFrames_ : named_;
  const QString name = toQString(key);
  if (const QIcon* icon = kept.object(name)) return *icon;
  QIcon made = picture ? keyFrameIcon(*picture) : namedIcon(name);
  kept.insert(name, new QIcon(made));
  return made;
}

QIcon TreeIconPainter::namedIcon(const QString& name) {
  return iconOf(
      [&](QPainter& painter, const QRect& whole) { ownIcon(name).paint(&painter, whole); }, true);
}

QIcon TreeIconPainter::keyFrameIcon(const Picture& picture) {
  const QImage image = readPicture(picture, iconSize() * qGuiApp->devicePixelRatio());
  return iconOf(
      [&](QPainter& painter, const QRect& whole) {
        if (image.isNull()) {
          ownIcon(QStringLiteral("Video")).paint(&painter, whole);
        } else {
          painter.drawImage(whole, image);
        }
        QSvgRenderer(ownIconPath(QStringLiteral("RedFrame"))).render(&painter, whole);
      },
      image.isNull());
}

}  // namespace velra
