// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace velra {

/// What the two set-of-strings controls share: rows of a text with a tick in front, a button that
/// adds a row (`Command1`) and one that removes the ticked ones (`Command2`). Ticks only mark rows
/// for removal. Rows count from 1; a row that is not there raises kSubscriptOutOfRange.
class SetOfRows {
 public:
  SetOfRows() = default;
  SetOfRows(const SetOfRows&) = delete;
  SetOfRows& operator=(const SetOfRows&) = delete;
  virtual ~SetOfRows() = default;

  std::int16_t Count() const { return static_cast<std::int16_t>(rows_.size()); }

  bool Enabled() const { return enabled_; }
  void setEnabled(bool enabled);

  /// Makes the rows, all empty. For one use: a second call does nothing, even if the rows are gone.
  void Init(std::int16_t rowCount);

  void Command1_Click();
  void Command2_Click();

  /// A row as it stands on the screen, and what the person does to it.
  const std::string& rowText(std::int16_t row) const;
  bool isTicked(std::int16_t row) const;
  void editRow(std::int16_t row, const std::string& text);
  void tickRow(std::int16_t row, bool ticked);

  /// What a row lets the person choose from; nothing for rows of free text.
  virtual std::vector<std::string> choices() const { return {}; }

  /// Called after any change of the rows or of `Enabled` that the person did not make in a row.
  /// The face sets it.
  std::function<void()> onChange;

 protected:
  void showInRow(std::int16_t row, const std::string& text);
  void removeAllRows();

 private:
  struct Row {
    std::string text;
    bool ticked = false;
  };

  /// What a row that the person adds shows at first.
  virtual std::string newRowText() const { return {}; }

  const Row& at(std::int16_t row) const;
  Row& at(std::int16_t row);
  void notify() const;

  std::vector<Row> rows_;
  bool enabled_ = true;
  bool bInit_ = false;
};

}  // namespace velra
