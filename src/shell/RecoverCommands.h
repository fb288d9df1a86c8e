// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "rescue/RescueRecords.h"

namespace velra {

class ApplicationModule;
class DialogPresenter;
class DocumentClosing;
class MainWindow;
class OpenCommands;

/// The commands of the File menu that put right what went another way than the person meant:
/// unsaved work, and a copy that refers to its original.
class RecoverCommands {
 public:
  RecoverCommands(ApplicationModule& app, MainWindow& window, DocumentClosing& closing,
                  OpenCommands& opening)
      : app_(app), window_(window), closing_(closing), opening_(opening) {}

  /// Without one the command does nothing.
  void setPresenter(DialogPresenter* presenter) { presenter_ = presenter; }

  /// Lists what is kept, and opens the document that was made of it.
  void mnuFileRecover();

  /// Has the open document, which was copied with its data folder, refer to its own objects, and
  /// opens it anew.
  void mnuFileIndependent();

 private:
  bool writeKeptWhenCutOff(const std::string& document, const SavePlan& plan);

  ApplicationModule& app_;
  MainWindow& window_;
  DocumentClosing& closing_;
  OpenCommands& opening_;
  DialogPresenter* presenter_ = nullptr;
};

}  // namespace velra
