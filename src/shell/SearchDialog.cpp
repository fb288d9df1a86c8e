// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/SearchDialog.h"

#include "shell/DialogPresenter.h"

namespace velra {

void SearchDialog::Show(DialogPresenter& presenter, FormOwner& owner) {
  presenter.showSearchDialog(owner, *this);
  onUnload = nullptr;
}

void SearchDialog::OKButt_Click(const std::string& text, bool matchCase, bool singleWord) {
  strText_ = text;
  bMatchCase_ = matchCase;
  bSingleWord_ = singleWord;
  unload();
}

void SearchDialog::CancelButt_Click() {
  bCancelPressed_ = true;
  unload();
}

void SearchDialog::unload() {
  if (onUnload) onUnload();
}

}  // namespace velra
