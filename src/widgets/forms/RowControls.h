// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <cstdint>
#include <memory>

class QCheckBox;
class QLabel;
class QWidget;

namespace velra {

class SetOfRows;

/// The controls of one row of a set of strings: a tick (`Check1_i`), and a text (`Text1_i`) or a
/// drop-down list (`Combo1_i`). They go when it goes.
class RowControls {
 public:
  /// Makes the controls of a row, which counts from 1, on a panel, unseen and without a place. The
  /// label names the field to people who hear the form; the rows must outlive the controls.
  RowControls(SetOfRows& rows, std::int16_t row, bool hasLists, const QString& label,
              QWidget& panel);
  RowControls(RowControls&&) noexcept;
  RowControls& operator=(RowControls&&) noexcept;
  RowControls(const RowControls&) = delete;
  RowControls& operator=(const RowControls&) = delete;
  ~RowControls();

  QWidget& tick() const;
  QWidget& value() const { return *value_; }

  /// The pitch and the height of rows, in twips.
  void place(int pitch, int height) const;
  void show() const;
  /// What the rows say of it.
  void update(const SetOfRows& rows) const;

 private:
  void makeText(SetOfRows& rows, QWidget& panel);
  void makeList(SetOfRows& rows, const QString& name, QWidget& panel);

  std::int16_t row_;
  std::unique_ptr<QCheckBox> Check1_;
  std::unique_ptr<QWidget> value_;  // Text1 or Combo1
  std::unique_ptr<QLabel> label_;   // of a list: not seen, but read out
};

}  // namespace velra
