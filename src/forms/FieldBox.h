// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/SetOfRows.h"
#include "values/Value.h"

namespace velra {

/// The kinds of value controls.
enum class ControlFamily { Text1, Check1, Combo1, DTPicker1, ctlSetOfString1, ctlSetOfStringCL1 };

/// The value control of one field with the box around it, without pixels.
struct FieldBox {
  ControlFamily family = ControlFamily::Text1;
  int element = 0;  ///< its number in the family, from 1
  int number = 0;   ///< its place in `colControls`, from 1, and the number of its box
  std::string strComment;
  std::string strName;
  bool bReadOnly = false;
  std::size_t Tag = 0;             ///< position of its field among all fields, from 1
  std::vector<std::string> items;  ///< what a `Combo1` offers

  /// What the control holds: a text (`Text1`, `Combo1`), the 16-bit number 0 or 1 (`Check1`) or a
  /// date (`DTPicker1`). The face writes here what the person enters and nothing else, so that a
  /// value that a control would show in another form stays as it is until it is edited.
  Value value;

  std::unique_ptr<SetOfRows> rows;  ///< the sets; null for all others

  /// Called when the rules change `value` or `items`. The face sets it.
  std::function<void()> onChange;

  /// Such as "Text1_3"; the one "ctlSetOfStringCL1" has no number.
  std::string controlName() const;
  /// Such as "Frame1_3".
  std::string frameName() const;

  /// Which of the ten places of a tab it takes, from 0.
  int slot() const;

  void show(Value newValue);
};

}  // namespace velra
