// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

class ApplicationModule;
class DocumentClosing;
class MainTrees;
class MainWindow;
class OpenCommands;
class TreeClicks;

/// The commands of the File menu that write the open document.
class SaveCommands {
 public:
  SaveCommands(ApplicationModule& app, MainWindow& window, MainTrees& trees, TreeClicks& clicks,
               DocumentClosing& closing, OpenCommands& opening)
      : app_(app),
        window_(window),
        trees_(trees),
        clicks_(clicks),
        closing_(closing),
        opening_(opening) {}

  /// Saves; a document that was never saved, as Save As.
  void mnuFileSave();
  void mnuFileSaveAs();

  /// Asks for the path of a new document, which ends in .xml; "" for none.
  std::string GetFileName(const std::string& proposed);

 private:
  void SaveDocumentAs();

  ApplicationModule& app_;
  MainWindow& window_;
  MainTrees& trees_;
  TreeClicks& clicks_;
  DocumentClosing& closing_;
  OpenCommands& opening_;
};

}  // namespace velra
