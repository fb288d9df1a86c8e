// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

class ApplicationModule;
class DocumentClosing;
class MainWindow;
class OpenCommands;

/// The commands of the File menu that write the open document.
class SaveCommands {
 public:
  SaveCommands(ApplicationModule& app, MainWindow& window, DocumentClosing& closing,
               OpenCommands& opening)
      : app_(app), window_(window), closing_(closing), opening_(opening) {}

  /// Saves; a document that was never saved, as Save As.
  void mnuFileSave();
  void mnuFileSaveAs();

  /// Asks for the path of a new document, which ends in .xml; "" for none.
  std::string GetFileName(const std::string& proposed);

 private:
  void paint();
  void SaveDocumentAs();

  ApplicationModule& app_;
  MainWindow& window_;
  DocumentClosing& closing_;
  OpenCommands& opening_;
};

}  // namespace velra
