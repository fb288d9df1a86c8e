// SPDX-License-Identifier: GPL-3.0-or-later
#include "Day.h"

#include <QTreeView>
#include <algorithm>
#include <cstdio>

#include "DayHands.h"

namespace velra::bench {

namespace {

constexpr double kPauseBudget = 50;  // milliseconds: a longer one is felt
constexpr double kUnpaintedBudget = 100;

}  // namespace

Day::Day(const std::string& folder, const std::string& schema)
    : program(folder, schema), watch_(program.window) {
  program.start();
  program.window.resize(1000, 700);
  std::printf("  %-52s %10s %10s %10s %10s\n", "the longest pause, ms", "clock", "alone",
              "processor", "unpainted");
}

void Day::step(const char* name, const std::function<void()>& act, Kind kind) {
  begin(name, kind);
  act();
  end();
}

void Day::begin(const char* name, Kind kind) {
  name_ = name;
  kind_ = kind;
  watch_.begin();
}

void Day::end() {
  watch_.end();
  const Stall& longest = watch_.longest();
  const double unpainted = watch_.longestUnpainted();
  std::printf("  %-52s %10.1f %10.1f %10.1f %10.1f%s\n", name_, longest.clock, longest.alone,
              longest.processor, unpainted, kind_ == Kind::Long ? "  long work" : "");
  std::fflush(stdout);
  double& worst = kind_ == Kind::Long ? worstUnpainted_ : worst_;
  worst = std::max(worst, kind_ == Kind::Long ? unpainted : longest.alone);
}

std::vector<Measure> Day::measures() const {
  return {
      {"the longest pause", worst_, "ms", kPauseBudget},
      {"the longest without a painting in long work", worstUnpainted_, "ms", kUnpaintedBudget},
  };
}

TreeNode& Day::nodeOf(TreeId tree, const std::string& title) {
  TreeNode* found = nullptr;
  program.rules.tree(tree).walk([&](TreeNode& node) {
    if (node.Text == title) found = &node;
    return !found;
  });
  if (!found) qFatal("no node %s", title.c_str());
  return *found;
}

QTreeView& Day::view(TreeId tree) {
  return control<QTreeView>(program.window,
                            tree == TreeId::tvwMainTree ? "tvwMainTree" : "tvwExpression");
}

}  // namespace velra::bench
