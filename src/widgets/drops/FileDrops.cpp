// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/drops/FileDrops.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <QWidget>
#include <utility>

namespace velra {

namespace {

bool isWaitedFor() {
  return QApplication::activeModalWidget() || QApplication::activePopupWidget();
}

// "" for anything but one file.
QString droppedFile(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  const QString path = urls.size() == 1 ? urls.front().toLocalFile() : QString();
  return QFileInfo(path).isFile() ? path : QString();
}

}  // namespace

FileDrops::FileDrops(QWidget& window, Prepare prepare)
    : QObject(&window), window_(window), prepare_(std::move(prepare)) {
  window_.setAcceptDrops(true);
  window_.installEventFilter(this);
}

bool FileDrops::eventFilter(QObject*, QEvent* event) {
  const bool isDrop = event->type() == QEvent::Drop;
  if (!isDrop && event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove) {
    return false;
  }
  auto& drop = static_cast<QDropEvent&>(*event);
  const QString path = droppedFile(*drop.mimeData());
  if (path.isEmpty() || isWaitedFor() || !(drop.possibleActions() & Qt::CopyAction)) {
    drop.ignore();
    return true;
  }
  drop.setDropAction(Qt::CopyAction);
  drop.accept();
  if (!isDrop) return true;
  window_.activateWindow();
  auto act = prepare_(path, window_.mapToGlobal(drop.position().toPoint()));
  QMetaObject::invokeMethod(
      &window_,
      [act = std::move(act)] {
        if (!isWaitedFor()) act();
      },
      Qt::QueuedConnection);
  return true;
}

}  // namespace velra
