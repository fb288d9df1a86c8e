// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "support/ToolSession.h"
#include "widgets/ModalAnswer.h"
#include "widgets/tool/PaintedParts.h"
#include "widgets/tool/PaintedPartsAccess.h"
#include "widgets/tool/VideoFormWindow.h"

namespace velra::test {

/// The tool's window over a scripted movie.
class ToolWindowTest : public ::testing::Test, public VideoFormFaces {
 protected:
  ToolWindowTest() { installPaintedPartsAccess(); }

  /// Shows the main expression; the person acts in its window and closes it.
  void inForm(const std::function<void(QWidget&)>& act) {
    bool ran = false;
    whenModal([&](QWidget& window) {
      ran = true;
      act(window);
      if (window.isVisible()) static_cast<QDialog&>(window).reject();
    });
    session.show();
    EXPECT_TRUE(ran);
  }
  template <class Widget = QWidget>
  static Widget& find(QWidget& window, const char* name) {
    auto* found = window.findChild<Widget*>(QLatin1String(name));
    if (!found) throw std::runtime_error(std::string("no control ") + name);
    return *found;
  }
  static void press(QWidget& window, const char* name) {
    QTest::mouseClick(&find<QPushButton>(window, name), Qt::LeftButton);
  }
  static QPoint middle(const PaintedParts& parts, int part) {
    return parts.partRect(part).center();
  }

  std::unique_ptr<VideoFormFace> makeVideoForm(FormOwner&) override {
    return std::make_unique<VideoFormWindow>(session.app, nullptr);
  }

  ToolSession session{*this};
};

}  // namespace velra::test
