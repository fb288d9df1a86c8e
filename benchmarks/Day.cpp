// SPDX-License-Identifier: GPL-3.0-or-later
#include "Day.h"

#include <QTreeView>
#include <algorithm>
#include <cstdio>

#include "DayHands.h"

namespace velra::bench {

namespace {

// Milliseconds. A pause longer than the first is felt.
constexpr double kPauseBudget = 50;
constexpr double kBulkBudget = 300;
constexpr double kUnpaintedBudget = 100;

const char* nameOf(Day::Kind kind) {
  switch (kind) {
    case Day::Kind::Usual:
      return "";
    case Day::Kind::Bulk:
      return "  thousands at once";
    case Day::Kind::Long:
      return "  long work";
  }
  return "";
}

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
              longest.processor, unpainted, nameOf(kind_));
  std::fflush(stdout);
  if (kind_ == Kind::Usual) worst_ = std::max(worst_, longest.alone);
  if (kind_ == Kind::Bulk) worstBulk_ = std::max(worstBulk_, longest.alone);
  if (kind_ != Kind::Usual) worstUnpainted_ = std::max(worstUnpainted_, unpainted);
}

std::vector<Measure> Day::measures() const {
  return {
      {"the longest pause", worst_, "ms", kPauseBudget},
      {"the longest pause for thousands at once", worstBulk_, "ms", kBulkBudget},
      {"the longest without a painting in these and long work", worstUnpainted_, "ms",
       kUnpaintedBudget},
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
