// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

class QPoint;
class QString;
class QWidget;

namespace velra {

/// Takes a file that is dropped on a window: one alone, that lies on this machine, and while no box
/// or dialog is open. It is always copied, so that no file manager takes the original away.
class FileDrops : public QObject {
  Q_OBJECT

 public:
  /// Prepares at once what is to be done at a place of the screen, and has it done when the drop is
  /// over, since the program that dragged the file waits for that.
  using Prepare = std::function<std::function<void()>(const QString& path, const QPoint& place)>;

  /// The window outlives it.
  FileDrops(QWidget& window, Prepare prepare);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& window_;
  Prepare prepare_;
};

}  // namespace velra
