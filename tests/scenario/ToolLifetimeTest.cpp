// SPDX-License-Identifier: GPL-3.0-or-later

// What two hundred openings of the tool leave behind: nothing.
#include <gtest/gtest.h>

#include <QDialog>

#include "protocol/Expression.h"
#include "scenario/Desktop.h"
#include "scenario/Hands.h"

namespace velra::test {
namespace {

struct Held {
  std::ptrdiff_t threads = 0;
  std::ptrdiff_t files = 0;
  qsizetype widgets = 0;
  qsizetype children = 0;  // of the main window, of every kind
  std::size_t objects = 0;
  long holders = 0;  // of the expression

  bool operator==(const Held&) const = default;
};

void PrintTo(const Held& held, std::ostream* out) {
  *out << held.threads << " threads, " << held.files << " files, " << held.widgets << " widgets, "
       << held.children << " children, " << held.objects << " objects, " << held.holders
       << " holders";
}

std::ptrdiff_t entriesOf(const char* folder) {
  return std::distance(std::filesystem::directory_iterator(folder), {});
}

TEST(ToolLifetime, TwoHundredOpeningsLeaveNothing) {
  Desktop desktop;
  desktop.start(desktop.sample());
  desktop.click("tvwMainTree", QStringLiteral("Original English sound version"));
  desktop.click("tvwExpression", QStringLiteral("Picture of Skarholm Light"));
  const ObjectRef video = desktop.rules.tvwExpression.selected()->Tag;

  const auto openOnce = [&](int round) {
    whenModal([round](QWidget& tool) {
      if (round % 2 == 0) press(tool, "cmdPlay");
      if (round % 4 == 0) QTest::qWait(30);
      if (round % 3 == 0) press(tool, "cmdForward");
      if (round % 5 == 0) {
        press(tool, "cmdNext");  // a bound, where a selection may begin
        press(tool, "cmdSel");
      }
      round % 7 == 0 ? static_cast<QDialog&>(tool).reject() : press(tool, "CancelButt");
    });
    desktop.trigger("mnuEditMetadata");
  };
  const auto held = [&] {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return Held{entriesOf("/proc/self/task"),
                entriesOf("/proc/self/fd"),
                QApplication::allWidgets().size(),
                desktop.window.findChildren<QObject*>().size(),
                desktop.app.gAVDoc->collObjects().Count(),
                video.use_count()};
  };
  QTest::qWait(2100);  // the splash window has gone
  openOnce(0);
  const Held before = held();
  for (int round = 1; round <= 200; ++round) openOnce(round);
  EXPECT_EQ(held(), before);
}

}  // namespace
}  // namespace velra::test
