// SPDX-License-Identifier: GPL-3.0-or-later
#include <QTreeView>

#include "Day.h"
#include "DayHands.h"
#include "widgets/tool/PaintedParts.h"

namespace velra::bench {

namespace {

constexpr int kCuts = 10;

void clickPart(QWidget& tool, const char* name, int part,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QWidget& parts = control(tool, name);
  clickAt(parts, dynamic_cast<PaintedParts&>(parts).partRect(part).center(), modifiers);
}

// In the room behind the last segment, a second each.
void cutSegments(QWidget& timeline) {
  for (int i = 0; i < kCuts; ++i) {
    strike(timeline, Qt::Key_Right);
    strike(timeline, Qt::Key_I);
    for (int steps = 0; steps < 3; ++steps) strike(timeline, Qt::Key_Right, Qt::ShiftModifier);
    willMeet({answering(QStringLiteral("cut"))});
    strike(timeline, Qt::Key_O);
  }
}

void selectAndChange(Day& day, QWidget& tool) {
  day.step("select ranges", [&] {
    for (int i = 0; i < 20; ++i) clickPart(tool, "advsld", i * 200);
    clickPart(tool, "advsld", 100, Qt::ShiftModifier);
  });
  QWidget& strip = control(tool, "Framelist1");
  strip.setFocus();
  const auto changeLast = [&](const char* button, bool two) {
    strike(strip, Qt::Key_End);
    if (two) strike(strip, Qt::Key_Left, Qt::ShiftModifier);
    willMeet({pressing("cmdYes")});
    press(tool, button);
  };
  day.step("merge two segments", [&] { changeLast("cmdMerge", true); });
  day.step("remove a segment in the tool", [&] { changeLast("cmdCanc", false); });
}

void work(Day& day, QWidget& tool) {
  QWidget& timeline = control(tool, "advsld");
  timeline.setFocus();
  day.step("go to the last segment's end", [&] {
    strike(timeline, Qt::Key_End);
    strike(timeline, Qt::Key_Left, Qt::ControlModifier);
  });
  day.step("cut ten segments", [&] { cutSegments(timeline); });
  selectAndChange(day, tool);
  day.step("take a key frame", [&] {
    willMeet({pressing("cmdYes"), pressing("cmdOK")});
    press(tool, "cmdKeyFrame");
  });
  day.step("play two seconds", [&] {
    strike(timeline, Qt::Key_Home);
    press(tool, "cmdPlay");
    pause(2000);
    press(tool, "cmdStop");
  });
}

}  // namespace

void workOnTool(Day& day) {
  QTreeView& view = day.view(TreeId::tvwExpression);
  clickNode(view, *day.program.rules.tvwExpression.root()->children.front());
  day.begin("open the tool on 4,750 segments");
  willMeet({[&](QWidget& tool) {
    pause(500);
    day.end();
    work(day, tool);
    day.begin("close the tool");
    press(tool, "OKButt");
  }});
  strikeAndWait(view, Qt::Key_F2);
  day.end();
}

}  // namespace velra::bench
