// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

namespace velra {

class DialogPresenter;
class FormOwner;

/// Asks what to search for. One instance lives as long as the program, so that the last text and
/// ticks come back.
class SearchDialog {
 public:
  const std::string& strText() const { return strText_; }
  bool bMatchCase() const { return bMatchCase_; }
  bool bSingleWord() const { return bSingleWord_; }
  /// Set by the first Cancel and never cleared: whoever has cancelled once has done with searching.
  bool bCancelPressed() const { return bCancelPressed_; }

  /// Shows the dialog with the last values and returns when it has closed.
  void Show(DialogPresenter& presenter, FormOwner& owner);

  /// OK, with what the controls hold: Text1, Check1 and Check2.
  void OKButt_Click(const std::string& text, bool matchCase, bool singleWord);
  void CancelButt_Click();

  /// Closes the window; the face sets it.
  std::function<void()> onUnload;

 private:
  void unload();

  std::string strText_;
  bool bMatchCase_ = false;
  bool bSingleWord_ = false;
  bool bCancelPressed_ = false;
};

}  // namespace velra
