// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

class ApplicationModule;
class ExpressionTool;

/// What keys do in the expression tool that no button does.
class KeyCommands {
 public:
  /// Both outlive it.
  KeyCommands(ExpressionTool& tool, const ApplicationModule& app) : tool_(tool), app_(app) {}

  ExpressionTool& tool() { return tool_; }

  /// The position is the first point of a new segment, also in the place of one that waits.
  void takeFirstPoint();
  /// The position is the second point; a beep while no first one waits.
  void takeSecondPoint();

  /// Asks for a time code and goes there, within what is open. What is no time code is told and
  /// asked for again.
  void askTimeCode();
  /// The time code of the position; "" without a movie.
  std::string timeCode() const;

 private:
  ExpressionTool& tool_;
  const ApplicationModule& app_;
};

}  // namespace velra
