// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/SetOfRows.h"

#include "base/Arithmetic.h"
#include "base/RunTimeError.h"

namespace velra {

void SetOfRows::setEnabled(bool enabled) {
  enabled_ = enabled;
  notify();
}

void SetOfRows::Init(std::int16_t rowCount) {
  if (bInit_) return;
  bInit_ = true;
  rows_.assign(static_cast<std::size_t>(rowCount), Row{});
  notify();
}

void SetOfRows::Command1_Click() {
  if (!enabled_) return;
  const std::int16_t iCount = addInt16(Count(), 1);
  rows_.resize(static_cast<std::size_t>(iCount));
  at(iCount).text = newRowText();
  notify();
}

void SetOfRows::Command2_Click() {
  if (!enabled_) return;
  if (std::erase_if(rows_, [](const Row& row) { return row.ticked; }) > 0) notify();
}

const std::string& SetOfRows::rowText(std::int16_t row) const {
  return at(row).text;
}

bool SetOfRows::isTicked(std::int16_t row) const {
  return at(row).ticked;
}

void SetOfRows::editRow(std::int16_t row, const std::string& text) {
  at(row).text = text;
}

void SetOfRows::tickRow(std::int16_t row, bool ticked) {
  at(row).ticked = ticked;
}

void SetOfRows::showInRow(std::int16_t row, const std::string& text) {
  at(row).text = text;
  notify();
}

void SetOfRows::removeAllRows() {
  rows_.clear();
  notify();
}

const SetOfRows::Row& SetOfRows::at(std::int16_t row) const {
  if (row < 1 || row > Count()) raise(kSubscriptOutOfRange);
  return rows_[static_cast<std::size_t>(row) - 1];
}

SetOfRows::Row& SetOfRows::at(std::int16_t row) {
  if (row < 1 || row > Count()) raise(kSubscriptOutOfRange);
  return rows_[static_cast<std::size_t>(row) - 1];
}

void SetOfRows::notify() const {
  if (onChange) onChange();
}

}  // namespace velra
