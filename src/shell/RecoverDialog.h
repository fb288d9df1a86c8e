// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "app/Message.h"
#include "rescue/RescueRecords.h"

namespace velra {

class ApplicationModule;
class DialogPresenter;
class FormOwner;

/// The states of documents that are kept though no file holds them, and what can be done with each.
/// One instance is made for one showing.
class RecoverDialog {
 public:
  /// There is a store. What is kept of the open document, by its path, comes first.
  RecoverDialog(ApplicationModule& app, std::string openDocument);

  static constexpr std::array<Message, 5> kColumns{
      Message::ColumnDocument, Message::ColumnLastChange, Message::ColumnObjects,
      Message::ColumnTitles, Message::ColumnEnd};

  struct Row {
    std::array<std::string, kColumns.size()> texts;
    std::string tip;          // the document's path, and the titles, one in a line
    bool canRecover = false;  // files that a save has replaced are no state of a document
    bool canDrop = false;     // what a program that runs still works on is not dropped
  };

  /// Shows the list over the owner until it is closed. The path of the document that was made, to
  /// be opened now, or "".
  std::string Show(DialogPresenter& presenter, FormOwner& owner);

  const std::vector<Row>& rows() const { return rows_; }

  // The buttons, each with the position of the current row, from 0.
  void RecoverButton_Click(std::size_t row);
  void SaveAsFilesButton_Click(std::size_t row);
  void DropButton_Click(std::size_t row);
  void CloseButton_Click();

  /// Closes the window, and tells it that the rows are others; the face sets them.
  std::function<void()> onUnload;
  std::function<void()> onRows;

 private:
  bool fillRows();
  Row rowOf(const KeptWork& work) const;
  std::vector<KeptObject> objectsOf(const KeptWork& work);
  std::string askNewPath(const std::string& document);
  bool leaveOutAsWanted(std::vector<KeptObject>& kept);

  ApplicationModule& app_;
  const std::string openDocument_;
  std::vector<KeptWork> works_;  // as the rows
  std::vector<Row> rows_;
  std::string recovered_;
};

}  // namespace velra
