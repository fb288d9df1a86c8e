// SPDX-License-Identifier: GPL-3.0-or-later

// A cataloguer's day in the real windows, by mouse and keyboard and the names of the controls.
#include <gtest/gtest.h>

#include <QPlainTextEdit>

#include "scenario/Desktop.h"
#include "scenario/Hands.h"

namespace velra::test {
namespace {

TEST(WorkingDay, TheSampleShowsBothTreesAndItsForms) {
  Desktop desktop;
  desktop.start(desktop.sample());
  EXPECT_TRUE(desktop.window.isVisible());
  EXPECT_EQ(desktop.texts("tvwMainTree").size(), 10);
  desktop.click("tvwMainTree", QStringLiteral("Original English sound version"));
  EXPECT_EQ(desktop.texts("tvwExpression").size(), 19);

  whenModal([](QWidget& form) {
    QPlainTextEdit* text = &textOf(form, QStringLiteral("VersionTitle"));
    text->selectAll();
    QTest::keyClicks(text, QStringLiteral("Renamed version"));
    press(form, "OKButt");
  });
  desktop.trigger("mnuEditMetadata");
  EXPECT_TRUE(desktop.texts("tvwMainTree").contains(QStringLiteral("Renamed version")));

  const auto before = desktop.folder.snapshot();
  desktop.trigger("mnuFileSave");
  for (const auto& [name, bytes] : desktop.folder.snapshot()) {
    const bool theVersion = name == "sample/lighthouse_files/lighthouse_version1.xml";
    EXPECT_EQ(bytes != before.at(name), theVersion) << name;
  }
}

}  // namespace
}  // namespace velra::test
