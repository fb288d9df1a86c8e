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
  const QRect room = owner.screen()->availableGeometry().marginsRemoved(kFrame);
  const QSize size = window.size().boundedTo(room.size());
  if (size != window.size()) {
    window.setMinimumSize(window.minimumSize().boundedTo(room.size()));
    window.resize(size);
  }
  // Who has no place of its own is given one afterwards.
  if (!window.testAttribute(Qt::WA_Moved)) return;
  const QRect inner = QRect(window.pos(), size).translated(kFrame.left(), kFrame.top());
  if (room.contains(inner)) return;
  const QSize left = (room.size() - size).expandedTo({0, 0});
  window.move(std::clamp(inner.x(), room.x(), room.x() + left.width()),
              std::clamp(inner.y(), room.y(), room.y() + left.height()));
}

}  // namespace velra
