// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <Qt>
#include <utility>
#include <vector>

class QGroupBox;
class QWidget;

namespace velra {

/// Where the keyboard's focus goes among the boxes of a generated form, which stand over one
/// another in ten slots of a panel.
class BoxFocus {
 public:
  /// The frames are those of the panel, in the order of the boxes; both must outlive it.
  BoxFocus(const QWidget& panel, const std::vector<QGroupBox*>& frames)
      : panel_(panel), frames_(frames) {}

  /// Until a tab is clicked, sets cover one another: the Tab key goes to what can be seen.
  void takeCoveredFromTabKey();
  void giveCoveredBack();

  /// What can take the focus first of what is in sight; null for nothing.
  QWidget* firstControlInSight() const;

  /// True for a control on the panel that can be seen or scrolled to.
  bool holds(const QWidget& control) const;

  /// The box that a control is in; null for none.
  const QGroupBox* frameAround(const QWidget* control) const;

 private:
  /// The box that stands on top in a slot; null for none.
  const QGroupBox* frameOnTop(int slot) const;

  const QWidget& panel_;
  const std::vector<QGroupBox*>& frames_;
  std::vector<std::pair<QWidget*, Qt::FocusPolicy>> covered_;  // and what they had before
};

}  // namespace velra
