// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ScreenBound.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace velra {

namespace {

// Pixels that the window system's frame may take, which is not known before the window shows.
constexpr QMargins kFrame{6, 38, 6, 6};

}  // namespace

bool ScreenBound::eventFilter(QObject* watched, QEvent* event) {
  const bool opens = event->type() == QEvent::Show && !event->spontaneous();
  if (opens && watched->isWidgetType()) {
    auto& widget = static_cast<QWidget&>(*watched);
    const Qt::WindowType type = widget.windowType();
    if (type == Qt::Window || type == Qt::Dialog) bound(widget);
  }
  return QObject::eventFilter(watched, event);
}

void ScreenBound::bound(QWidget& window) {
  if (window.isMaximized() || window.isFullScreen()) return;
  // Dialogs come over their owner.
  const QWidget& owner = window.parentWidget() ? *window.parentWidget() : window;
  const QRect screen = owner.screen()->availableGeometry();
  const QRect room = screen.marginsRemoved(kFrame);
  const bool hasPlace = window.testAttribute(Qt::WA_Moved);
  if (hasPlace && screen.contains(window.geometry())) return;
  const QSize size = window.size().boundedTo(room.size());
  if (size != window.size()) {
    window.setMinimumSize(window.minimumSize().boundedTo(room.size()));
    window.resize(size);
  }
  if (!hasPlace) return;  // it is given one afterwards
  const QPoint place = window.pos() + QPoint(kFrame.left(), kFrame.top());
  const QSize left = (room.size() - size).expandedTo({0, 0});
  window.move(std::clamp(place.x(), room.x(), room.x() + left.width()),
              std::clamp(place.y(), room.y(), room.y() + left.height()));
}

}  // namespace velra
