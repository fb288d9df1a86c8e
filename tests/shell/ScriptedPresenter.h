// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/AVDocSchemaDialog.h"
#include "forms/FormPresenter.h"
#include "forms/LoadedForm.h"
#include "shell/ConnectionDialog.h"
#include "shell/DialogPresenter.h"
#include "shell/RecoverDialog.h"
#include "shell/SearchDialog.h"
#include "shell/SearchResultDialog.h"
#include "shell/ShotsDialog.h"

namespace velra::test {

/// Shows each form and dialog by doing what the test has told it, then closes it.
class ScriptedPresenter : public FormPresenter, public DialogPresenter {
 public:
  std::vector<std::string> captions;  // of the metadata forms
  const FormOwner* lastOwner = nullptr;

  std::function<void(LoadedForm&)> whileShown;
  std::function<void(AVDocSchemaDialog&)> onSchema;
  std::function<void(SearchDialog&)> onSearch;
  std::function<void(SearchResultDialog&)> onResults;
  std::function<void(ConnectionDialog&)> onConnection;
  std::function<void(RecoverDialog&)> onRecover;
  std::function<void(ShotsDialog&)> onShots;

  void showForm(FormOwner& owner, LoadedForm& form) override {
    captions.push_back(form.caption());
    lastOwner = &owner;
    if (whileShown) whileShown(form);
  }
  void showSchemaDialog(FormOwner& owner, AVDocSchemaDialog& dialog) override {
    lastOwner = &owner;
    onSchema(dialog);
  }
  void showSearchDialog(FormOwner& owner, SearchDialog& dialog) override {
    lastOwner = &owner;
    if (onSearch) onSearch(dialog);
  }
  void showSearchResults(FormOwner& owner, SearchResultDialog& dialog) override {
    lastOwner = &owner;
    if (onResults) onResults(dialog);
  }
  void showConnectionDialog(FormOwner& owner, ConnectionDialog& dialog) override {
    lastOwner = &owner;
    if (onConnection) onConnection(dialog);
  }
  void showShotsDialog(FormOwner& owner, ShotsDialog& dialog) override {
    lastOwner = &owner;
    if (onShots) onShots(dialog);
  }
  void showRecoverDialog(FormOwner& owner, RecoverDialog& dialog) override {
    lastOwner = &owner;
    if (onRecover) onRecover(dialog);
  }
};

}  // namespace velra::test
