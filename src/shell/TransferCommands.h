// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra {

class ApplicationModule;
class DocumentClosing;
class OpenCommands;
class SaveCommands;

/// The two commands that take a document out of the file system and back. No server stands on the
/// other side: a document taken out is written nowhere, and its files stay as they are.
class TransferCommands {
 public:
  TransferCommands(ApplicationModule& app, DocumentClosing& closing, OpenCommands& opening,
                   SaveCommands& saving)
      : app_(app), closing_(closing), opening_(opening), saving_(saving) {}

  void mnuExportToDB();
  void mnuImportToFS();

 private:
  void transferObjects(bool toFileSystem);
  bool bSaveUnder(const std::string& path);
  void reopen(const std::string& path, bool bFileSystem);

  ApplicationModule& app_;
  DocumentClosing& closing_;
  OpenCommands& opening_;
  SaveCommands& saving_;
};

}  // namespace velra
