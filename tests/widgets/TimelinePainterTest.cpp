// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tool/TimelinePainter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QWidget>

#include "tool/PropertyBag.h"

namespace velra::test {
namespace {

// What is drawn of a selected range is one dark line around it, inside of its body: a wide one and
// one that is as wide as its ends are painted in ways of their own.
TEST(TimelinePainterTest, ASelectedRangeHasOneLineAroundIt) {
  AdvancedSlider advsld;
  advsld.ReadProperties({});
  advsld.setDMin(0);
  advsld.setDMax(100);
  advsld.Resize(10400);
  advsld.iAddRange(10, 30, "wide");
  advsld.iAddRange(50, 50.1, "narrow");
  QWidget widget;
  widget.resize(800, 40);
  for (const bool selected : {false, true}) {
    for (const int ratio : {1, 2}) {
      if (selected) {
        advsld.setIRangeSelectedStart(1);
        advsld.setIRangeSelectedEnd(2);
      }
      QImage image(widget.size() * ratio, QImage::Format_RGB32);
      image.setDevicePixelRatio(ratio);
      image.fill(Qt::white);
      QPainter painter(&image);
      TimelinePainter(painter, widget).paint(advsld);
      for (const AdvancedSlider::Mark& mark : advsld.marks()) {
        SCOPED_TRACE(mark.left);
        const QRect body = TimelinePainter::markRect(mark);
        const auto isLine = [&](int x, int y) {
          return image.pixel(x * ratio, y * ratio) == qRgb(30, 30, 30);
        };
        const QPoint in = body.center();
        EXPECT_EQ(isLine(body.left(), in.y()), selected);
        EXPECT_EQ(isLine(body.right(), in.y()), selected);
        EXPECT_EQ(isLine(in.x(), body.top()), selected);
        EXPECT_EQ(isLine(in.x(), body.bottom()), selected);
        EXPECT_EQ(isLine(body.right(), body.bottom()), selected);
        for (const int x : {body.left() - 1, in.x(), body.right() + 1}) {
          EXPECT_FALSE(isLine(x, in.y())) << x;
        }
      }
    }
  }
}

}  // namespace
}  // namespace velra::test
