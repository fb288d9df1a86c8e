// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main/KeyFrameCache.h"

#include <gtest/gtest.h>

#include <QImage>
#include <fstream>
#include <random>
#include <vector>

#include "shell/TreeIcons.h"
#include "support/TemporaryFolder.h"
#include "values/Picture.h"
#include "widgets/QtText.h"
#include "widgets/main/TreeIconPainter.h"

namespace velra {
namespace {

Picture still(const std::string& path, const QColor& left, const QColor& right) {
  QImage image(32, 18, QImage::Format_RGB32);
  image.fill(left);
  for (int x = 16; x < 32; ++x) {
    for (int y = 0; y < 18; ++y) image.setPixelColor(x, y, right);
  }
  EXPECT_TRUE(image.save(pathToQString(path)));
  return {path, 0, 0};
}

/// Pictures in files, among them a broken one, one whose file is absent, and no picture at all.
std::vector<Picture> somePictures(const test::TemporaryFolder& folder, std::mt19937& random) {
  const std::string broken = folder / "broken.bmp";
  std::ofstream(broken) << "BM and no more";
  std::vector<Picture> pictures{{}, {broken, 0, 0}, {folder / "absent.bmp", 0, 0}};
  for (int i = 0; i < 12; ++i) {
    const auto colour = [&] { return QColor::fromHsv(static_cast<int>(random() % 360), 255, 200); };
    pictures.push_back(still(folder / ("still" + std::to_string(i) + ".bmp"), colour(), colour()));
  }
  return pictures;
}

QImage plainPixmap(const Picture& picture, const QSize& size) {
  const QImage image(pathToQString(picture.path));
  if (image.isNull()) return {};
  const QImage scaled = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  return QPixmap::fromImage(scaled).toImage();
}

QImage pictureOf(const QIcon& icon, QIcon::Mode mode) {
  return icon.pixmap(TreeIconPainter::iconSize(), mode).toImage();
}

// The sizes are such that the bound is passed many times over.
TEST(KeyFrameCacheTest, ShowsWhatReadingEachTimeWouldShow) {
  const test::TemporaryFolder folder;
  std::mt19937 random(1);
  const std::vector<Picture> pictures = somePictures(folder, random);
  const std::vector<QSize> sizes{{67, 50}, {50, 67}, {640, 480}, {1280, 960}};
  KeyFrameCache cache;
  for (int i = 0; i < 300 && !HasFailure(); ++i) {
    const Picture& picture = pictures[random() % pictures.size()];
    const QSize size = sizes[random() % sizes.size()];
    if (!cache.find(picture, size)) cache.read(picture, size);
    ASSERT_NE(cache.find(picture, size), nullptr);
    EXPECT_EQ(cache.find(picture, size)->toImage(), plainPixmap(picture, size))
        << i << ": " << picture.path << " at " << size.width();
  }
}

// More icons than are kept; they come and go and change, also under the name of a named one.
TEST(TreeIconPainterTest, ShowsWhatAPainterWithoutMemoryWouldShow) {
  const test::TemporaryFolder folder;
  std::mt19937 random(2);
  const std::vector<Picture> pictures = somePictures(folder, random);
  TreeIcons icons;
  TreeIconPainter painter(icons);
  const auto randomKey = [&] {
    return random() % 20 == 0 ? "Video" : "video" + std::to_string(random() % 700) + ".xml";
  };
  for (int i = 0; i < 700; ++i) icons.addKeyFrame(randomKey(), pictures[random() % 15]);
  for (int i = 0; i < 3000 && !HasFailure(); ++i) {
    const std::string key = randomKey();
    if (random() % 200 == 0) {
      random() % 2 == 0 ? icons.remove(key) : icons.addKeyFrame(key, pictures[random() % 15]);
      painter.forget();  // as the window does after each change
    }
    if (!icons.holds(key)) continue;
    const QIcon shown = painter.icon(key);
    const QIcon plain = TreeIconPainter(icons).icon(key);
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected}) {
      EXPECT_EQ(pictureOf(shown, mode), pictureOf(plain, mode)) << i << ": " << key;
    }
  }
}

}  // namespace
}  // namespace velra
