// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCache>
#include <QIcon>
#include <QSize>
#include <QString>
#include <string>

namespace velra {

class TreeIcons;
struct Picture;

/// The icons of the tree nodes by their keys: the named ones, and the key frames inside a red
/// frame. A key frame's picture is read when it is first asked for, and a bounded number of them is
/// kept.
class TreeIconPainter {
 public:
  explicit TreeIconPainter(const TreeIcons& icons) : icons_(icons) {}

  /// The size of every icon, in logical pixels.
  static QSize iconSize() { return {32, 24}; }

  QIcon icon(const std::string& key);

  /// Forgets the pictures that were read; their files may have changed.
  void forget() { keyFrames_.clear(); }

 private:
  static constexpr int kKeptKeyFrames = 512;

  static QIcon namedIcon(const QString& name);
  static QIcon keyFrameIcon(const Picture& picture);

  const TreeIcons& icons_;
  QCache<QString, QIcon> named_;
  QCache<QString, QIcon> keyFrames_{kKeptKeyFrames};
};

}  // namespace velra
