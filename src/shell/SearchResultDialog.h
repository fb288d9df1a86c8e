// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "protocol/DescribedObject.h"
#include "protocol/ObjectForm.h"

namespace velra {

class ApplicationModule;
class DialogPresenter;
class TreeIcons;

/// The objects of the document that hold a text. The list is made once for each search; what is
/// edited from it does not change it.
class SearchResultDialog : public FormOwner {
 public:
  /// The list shows the icons of the trees.
  SearchResultDialog(ApplicationModule& app, const TreeIcons& icons);

  /// Headers of the columns, each a third of the list's width.
  static constexpr std::array<const char*, 3> kColumns{"Type", "Title", "Number of founds"};

  struct Row {
    std::string type;  // class of the object
    std::string title;
    std::int16_t founds = 0;
    std::string smallIcon;  // key in the image list
    ObjectRef Tag;
  };

  /// Searches and shows the list over the owner until it is closed. Without a document: kNoObject.
  void ShowDialog(DialogPresenter& presenter, FormOwner& owner, const std::string& text,
                  bool matchCase, bool singleWord);

  const std::string& strSearch() const { return strSearch_; }
  bool bCase() const { return bCase_; }
  /// Kept for the asker; whole words are not told apart.
  bool bWord() const { return bWord_; }

  const TreeIcons& icons() const { return icons_; }
  const std::vector<Row>& rows() const { return rows_; }

  /// A click anywhere in the list, with the positions of the selected rows, from 1: the form of
  /// each opens over the list.
  void ListView1_Click(const std::vector<std::size_t>& selected);
  void OKButton_Click() { unload(); }
  void CancelButton_Click() { unload(); }

  /// Closes the window; the face sets it.
  std::function<void()> onUnload;

 private:
  void fillRows();
  void unload();

  ApplicationModule& app_;
  const TreeIcons& icons_;
  std::string strSearch_;
  bool bCase_ = false;
  bool bWord_ = false;
  std::vector<Row> rows_;
};

}  // namespace velra
