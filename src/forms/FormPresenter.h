// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra {

class AVDocSchemaDialog;
class FormOwner;
class LoadedForm;

/// Shows forms; the windows stand behind it, or a script in tests.
class FormPresenter {
 public:
  virtual ~FormPresenter() = default;

  /// Shows the form over the owner, which takes nothing meanwhile, until it has been unloaded.
  virtual void showForm(FormOwner& owner, LoadedForm& form) = 0;

  /// The same for the dialog of assigned fields, until it closes.
  virtual void showSchemaDialog(FormOwner& owner, AVDocSchemaDialog& dialog) = 0;
};

}  // namespace velra
