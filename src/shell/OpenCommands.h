// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

namespace velra {

class AVDocument;
class ApplicationModule;
class DocumentClosing;
class IOManager;
class MainTrees;
class MainWindow;
class ObjectForm;
class TreeClicks;

/// The commands that put another document in the place of the open one: Open and New.
class OpenCommands {
 public:
  OpenCommands(ApplicationModule& app, MainWindow& window, MainTrees& trees, TreeClicks& clicks,
               DocumentClosing& closing)
      : app_(app), window_(window), trees_(trees), clicks_(clicks), closing_(closing) {}

  void ShowOpenDialog();
  /// Opens a document, or the document of an object's file, which then shows its form first. A file
  /// without the ending .xml is a link, and its first line names what is on a server.
  void OpenFile(const std::string& path);
  void OpenDoc(const std::string& path, bool bFileSystem);
  void mnuFileNew();

  /// Reads a document, which becomes the open one. A message, or "": `show` has to follow then.
  std::string open(const std::string& path, const std::shared_ptr<IOManager>& io);
  void show();

 private:
  void openOrFind(const std::string& path, const std::shared_ptr<IOManager>& io);
  void openWithWantedObject(const std::string& wanted, const std::string& document,
                            const std::shared_ptr<IOManager>& io);
  void awaitReferences();
  std::shared_ptr<AVDocument> NewDocument();

  ApplicationModule& app_;
  MainWindow& window_;
  MainTrees& trees_;
  TreeClicks& clicks_;
  DocumentClosing& closing_;
  std::shared_ptr<ObjectForm> frmAVDocForm_;
};

}  // namespace velra
