// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "app/Message.h"
#include "protocol/DescribedObject.h"

namespace velra {

class ApplicationModule;
class DialogPresenter;
class MainTrees;
class MainWindow;
struct Content;
struct ImportFormat;
struct ImportOptions;
struct ImportReport;

/// The commands of the File menu that write the open document in formats of others, as it is in
/// memory, and take into it what others have written. What comes in is saved by the person.
class ExchangeCommands {
 public:
  ExchangeCommands(ApplicationModule& app, MainWindow& window, MainTrees& trees)
      : app_(app), window_(window), trees_(trees) {}

  /// Shows the shots; without one the command does nothing.
  void setPresenter(DialogPresenter* presenter) { presenter_ = presenter; }

  void mnuFileExportAs();

  /// Into the expression that is selected in the right tree, else into the main one of the Version
  /// that it shows, or of the first; words into its Transcript.
  void mnuFileImport();

  /// Finds the shots of the movie for the same expression, and makes segments of those that the
  /// person wants.
  void mnuFileFindShots();

 private:
  std::string askExportPath(std::size_t& format);
  Content contentToExport() const;
  ImportOptions whereTo(const ImportFormat& format) const;
  void import(const ImportFormat& format, const std::string& path, ImportOptions options);
  void takeShots(const ImportOptions& options);
  void show(Message command, const ImportReport& report);
  ObjectRef shownVersion() const;

  ApplicationModule& app_;
  MainWindow& window_;
  MainTrees& trees_;
  DialogPresenter* presenter_ = nullptr;
};

}  // namespace velra
