// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace velra {

class ApplicationModule;
class FormOwner;
class FormPresenter;
class SEColl;

/// The dialog in which the person turns the fields of an object on and off: one row with a tick for
/// each field. One instance serves all objects.
class AVDocSchemaDialog {
 public:
  AVDocSchemaDialog(ApplicationModule& app, FormPresenter& presenter);

  struct Column {
    const char* header;
    int shareOfWidth;  ///< in twelfths
  };
  static constexpr std::array<Column, 4> kColumns{
      {{"Valid", 2}, {"Attribute Name", 3}, {"Type", 3}, {"Comment", 3}}};

  struct Row {
    bool ticked = false;
    std::string strName;
    std::string strType;
    std::string strComment;
  };

  /// Shows the dialog over the owner and returns when it has closed.
  void ShowDialog(FormOwner& owner, SEColl& secol);

  /// True when it was left without OK.
  bool bCancel() const { return bCancelFlag_; }

  /// A row for each field, in the fields' order.
  const std::vector<Row>& rows() const { return rows_; }

  /// The person moves the tick of a row; rows count from 1. False, with a beep, when the row keeps
  /// the tick it has: structural, ignored and read-only fields do.
  bool setTicked(std::size_t row, bool ticked);

  void OKButton_Click();
  void CancelButton_Click();

  /// Closes the window; the face sets it.
  std::function<void()> onUnload;

 private:
  void fillRows();
  void unload();

  ApplicationModule& app_;
  FormPresenter& presenter_;
  SEColl* colSE_ = nullptr;  // while it shows
  std::vector<Row> rows_;
  bool bCancelFlag_ = false;
};

}  // namespace velra
