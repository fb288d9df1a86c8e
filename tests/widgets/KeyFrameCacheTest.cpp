#include "widgets/KeyFrameCache.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>

#include "support/TemporaryFolder.h"
#include "values/Picture.h"
#include "widgets/QtText.h"

namespace velra {
namespace {

TEST(KeyFrameCacheTest, aPictureIsReadOnceForASizeAndAMissingOneIsNull) {
  const test::TemporaryFolder folder;
  Picture picture;
  picture.path = folder / "still.bmp";
  QImage still(32, 18, QImage::Format_RGB32);
  still.fill(Qt::green);
  ASSERT_TRUE(still.save(pathToQString(picture.path)));
  KeyFrameCache cache;
  EXPECT_EQ(cache.pixmap(picture, {67, 50}).toImage().pixelColor(30, 30), QColor(Qt::green));
  QFile::remove(pathToQString(picture.path));
  EXPECT_FALSE(cache.pixmap(picture, {67, 50}).isNull());
  EXPECT_TRUE(cache.pixmap(picture, {134, 100}).isNull()) << "another size is read anew";
  EXPECT_TRUE(cache.pixmap({}, {67, 50}).isNull());
}

}  // namespace
}  // namespace velra
