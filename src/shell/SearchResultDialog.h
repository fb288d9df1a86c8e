// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "protocol/DescribedObject.h"
#include "protocol/LongWork.h"
#include "protocol/ObjectForm.h"
#include "shell/SearchAhead.h"

namespace velra {

class ApplicationModule;
class DialogPresenter;
class TreeIcons;

/// What is searched before the list is shown: so many objects, and more for so long.
struct FirstStretch {
  std::size_t objects = 4096;
  std::chrono::milliseconds time{10};
};

/// The objects of the document that hold a text. The list is made once for each search, the first
/// stretch of it before it is shown and the rest meanwhile; what is edited from it does not change
/// it, since the search comes to its end before a form opens.
class SearchResultDialog : public FormOwner {
 public:
  /// The list shows the icons of the trees.
  SearchResultDialog(ApplicationModule& app, const TreeIcons& icons,
                     const FirstStretch& first = {});

  /// Headers of the columns, each a third of the list's width.
  static constexpr std::array<const char*, 3> kColumns{"Type", "Title", "Number of founds"};

  struct Row {
    std::string type;  // class of the object
    std::string title;
    std::int16_t founds = 0;
    std::string smallIcon;  // key in the image list
    ObjectRef Tag;
  };

  /// Searches and shows the list over the owner until it is closed, which ends the search wherever
  /// it is. Without a document: kNoObject.
  void ShowDialog(DialogPresenter& presenter, FormOwner& owner, const std::string& text,
                  bool matchCase, bool singleWord);

  const std::string& strSearch() const { return strSearch_; }
  bool bCase() const { return bCase_; }
  /// Kept for the asker; whole words are not told apart.
  bool bWord() const { return bWord_; }

  const TreeIcons& icons() const { return icons_; }
  /// They only grow, in the order of the objects, until the list is closed.
  const std::vector<Row>& rows() const { return rows_; }

  /// Whether rows may still come.
  bool bSearching() const { return search_.has_value(); }

  /// Searches on for about so long and tells whether more is left. Whoever shows the list calls it
  /// as long as that is so, on the thread of the windows. Run-time errors of an object are raised
  /// here, behind the rows of those before it.
  bool searchOn(std::chrono::milliseconds time);

  /// A click anywhere in the list, with the positions of the selected rows, from 1: the search ends
  /// first, and then the form of each opens over the list.
  void ListView1_Click(const std::vector<std::size_t>& selected);
  void OKButton_Click() { unload(); }
  void CancelButton_Click() { unload(); }

  /// Closes the window; the face sets it.
  std::function<void()> onUnload;
  /// The search has gone on or has come to its end; the face sets it.
  std::function<void()> onSearched;

 private:
  void beginSearch();
  /// Lists what is found before this place, and behind it for so long.
  void searchOn(std::size_t place, std::chrono::milliseconds time);
  void searchToTheEnd();
  void endSearch();
  void listIfFound(std::size_t place);
  void unload();

  ApplicationModule& app_;
  const TreeIcons& icons_;
  std::string strSearch_;
  bool bCase_ = false;
  bool bWord_ = false;
  const FirstStretch first_;
  std::vector<Row> rows_;
  // While it searches.
  std::optional<SearchAhead> search_;
  std::optional<LongWork> work_;
  std::size_t listed_ = 0;  // objects
};

}  // namespace velra
