// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QString>

namespace velra {

/// The parts of a widget that paints them itself, such as the ranges of a timeline, as a screen
/// reader meets them. Parts count from 0; a number that no part has is never asked for.
class PaintedParts {
 public:
  virtual ~PaintedParts() = default;

  virtual int partCount() const = 0;
  /// As painted, in the widget.
  virtual QRect partRect(int part) const = 0;
  virtual QString partName(int part) const = 0;
  virtual bool partSelected(int part) const = 0;
  /// The part that the keyboard is at; -1 for none.
  virtual int currentPart() const = 0;
  /// What a click does.
  virtual void pressPart(int part) = 0;
};

}  // namespace velra
