// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "scenario/Desktop.h"

namespace velra::test {
namespace {

TEST(Drops, OpenADocumentAndAppendAMovieToTheMediaUnderThem) {
  Desktop desktop;
  desktop.start("");
  // What the source is told to do: by its own wish it would take the file away.
  const auto drop = [&](const std::string& path, const QPoint& place) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(path))});
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&desktop.window, &enter);
    QDropEvent event(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    event.setDropAction(Qt::MoveAction);
    event.ignore();
    QCoreApplication::sendEvent(&desktop.window, &event);
    QCoreApplication::processEvents();
    return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
  };
  EXPECT_EQ(drop(desktop.folder / "sample", {9, 9}), Qt::IgnoreAction);
  EXPECT_EQ(drop(desktop.sample(), {9, 9}), Qt::CopyAction);
  ASSERT_TRUE(desktop.app.gAVDoc);
  const QStringList before = desktop.texts("tvwMainTree");
  desktop.click("tvwMainTree", QStringLiteral("MPEG-1 viewing copy"));
  QTreeView& tree = desktop.view("tvwMainTree");
  const QPoint media = tree.visualRect(tree.currentIndex()).center();
  drop(desktop.folder / "sample/lighthouse.mpg", tree.viewport()->mapTo(&desktop.window, media));
  EXPECT_EQ(desktop.texts("tvwMainTree").size(), before.size() + 1);
  EXPECT_EQ(tree.currentIndex().data(), QStringLiteral("MPEG-1 viewing copy"));
}

}  // namespace
}  // namespace velra::test
