// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "DayProgram.h"
#include "Measure.h"
#include "StallWatch.h"

class QTreeView;

namespace velra::bench {

/// A day at the windows, step by step, with the longest pause of each.
class Day {
 public:
  enum class Kind {
    Usual,
    Bulk,  // one command over thousands of objects or files: it may be felt, and has to paint
    Long,  // lasts, and shows how far it has come: no pause, but it has to paint
  };

  Day(const std::string& folder, const std::string& schema);

  /// Does a step and prints what it made a person wait.
  void step(const char* name, const std::function<void()>& act, Kind kind = Kind::Usual);
  /// The same of what begins in one window and ends in another.
  void begin(const char* name, Kind kind = Kind::Usual);
  void end();
  std::vector<Measure> measures() const;

  /// The node that a tree shows for the object of this title; it has to be there.
  TreeNode& nodeOf(TreeId tree, const std::string& title);
  QTreeView& view(TreeId tree);

  DayProgram program;

 private:
  StallWatch watch_;
  const char* name_ = "";  // of the step that has begun
  Kind kind_ = Kind::Usual;
  double worst_ = 0;           // milliseconds of a usual step
  double worstBulk_ = 0;       // of one over thousands
  double worstUnpainted_ = 0;  // of these and of long ones
};

/// The steps at the forms and at the trees, and those at the tool, over a document that shows its
/// first Version.
void workOnForms(Day& day, const std::string& movie);
void workOnTool(Day& day);

}  // namespace velra::bench
