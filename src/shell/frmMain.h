// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "protocol/MainWindow.h"
#include "shell/CurrentFace.h"
#include "shell/DialogCommands.h"
#include "shell/DocumentClosing.h"
#include "shell/EditCommands.h"
#include "shell/ExchangeCommands.h"
#include "shell/MainMenus.h"
#include "shell/MainTrees.h"
#include "shell/OpenCommands.h"
#include "shell/RecoverCommands.h"
#include "shell/SaveCommands.h"
#include "shell/TransferCommands.h"
#include "shell/TreeClicks.h"

namespace velra {

class ApplicationModule;

/// The main window without its pixels, as objects, forms and the window see it. Each command is
/// handed to the class that does it.
class frmMain : public MainWindow {
 public:
  explicit frmMain(ApplicationModule& app);
  ~frmMain() override;
  frmMain(const frmMain&) = delete;
  frmMain& operator=(const frmMain&) = delete;

  /// Set while the window exists; null without one, as in tests.
  void setFace(MainWindowFace* face);
  /// Shows the dialogs of the commands; without one these commands do nothing.
  void setDialogPresenter(DialogPresenter* presenter) {
    dialogs_.setPresenter(presenter);
    recovering_.setPresenter(presenter);
    exchange_.setPresenter(presenter);
  }

  Tree& tree(TreeId id) { return trees_.tree(id); }
  const TreeIcons& imlTreeIcons() const { return trees_.icons(); }
  const MenuState& menuState() const { return menus_.state(); }

  // What objects and forms call.
  std::string strStatusBarText() const override { return statusText_; }
  void setStrStatusBarText(const std::string& text) override;
  void UpdateNodeTitle(const DescribedObject& object) override { trees_.UpdateNodeTitle(object); }
  void ResetTree(TreeId tree, const ObjectRef& version) override {
    trees_.ResetTree(tree, version);
  }
  void RemoveIcon(const std::string& key) override { trees_.RemoveIcon(key); }
  void AddSmallKeyFrame(const VideoExpression& video) override { trees_.AddSmallKeyFrame(video); }
  void UpdateSmallKeyFrames() override;
  void workBegins(std::size_t parts, Leaving leaving) override;
  void workSteps() override;
  void workWaits() override;
  void workEnds() override { workBegins(0, Leaving::NotBefore); }

  // The mouse and the keyboard on the trees.
  void treeMouseDown(TreeId tree, MouseButton button) { clicks_.treeMouseDown(tree, button); }
  void nodeClicked(TreeId tree, TreeNode& node) { clicks_.nodeClicked(tree, node); }
  void treeEntered(TreeId tree) { clicks_.treeEntered(tree); }
  void DeleteNode(TreeId tree) { editing_.DeleteNode(tree); }

  /// A file was dropped: on a Media it becomes a Storage, elsewhere (null) it is opened.
  void dropFile(const std::string& path, const ObjectRef& onto);

  // The File menu.
  void mnuFile_Click() { menus_.mnuFile_Click(); }
  void ShowOpenDialog() { opening_.ShowOpenDialog(); }
  void OpenFile(const std::string& path) { opening_.OpenFile(path); }
  void OpenDoc(const std::string& path, bool bFileSystem) { opening_.OpenDoc(path, bFileSystem); }
  void mnuFileNew() { opening_.mnuFileNew(); }
  void mnuFileSave() { saving_.mnuFileSave(); }
  void mnuFileSaveAs() { saving_.mnuFileSaveAs(); }
  void mnuFileFind() { dialogs_.mnuFileFind(); }
  void mnuExportToDB() { transfer_.mnuExportToDB(); }
  void mnuImportToFS() { transfer_.mnuImportToFS(); }
  void mnuFileExportAs() { exchange_.mnuFileExportAs(); }
  void mnuFileImport() { exchange_.mnuFileImport(); }
  void mnuFileFindShots() { exchange_.mnuFileFindShots(); }
  void mnuFileRecover() { recovering_.mnuFileRecover(); }
  void mnuFileIndependent() { recovering_.mnuFileIndependent(); }
  void ShowAVDocTitle() { clicks_.ShowAVDocTitle(); }
  /// The last step of a program that ends as it should.
  void releaseDocument() { closing_.releaseDocument(); }

  // The Edit menu.
  void ContexMenuManager(const DescribedObject& object, bool fromMainTree) {
    menus_.ContexMenuManager(object, fromMainTree);
  }
  void mnuEditMetadata() { editing_.mnuEditMetadata(); }
  void mnuEditAttributes() { editing_.mnuEditAttributes(); }
  void mnuAddChild() { editing_.mnuAddChild(); }
  void AddMainExpr(ObjectKind kind) { editing_.AddMainExpr(kind); }

  // The menus of languages and options.
  void setLanguage(std::int32_t language) { menus_.setLanguage(language); }
  void mnuConnection() { dialogs_.mnuConnection(); }

 private:
  ApplicationModule& app_;
  std::string statusText_;
  std::size_t workParts_ = 0;
  std::size_t workDone_ = 0;
  Leaving leaving_ = Leaving::NotBefore;
  CurrentFace face_;
  MainTrees trees_;
  MainMenus menus_;
  TreeClicks clicks_;
  DocumentClosing closing_;
  OpenCommands opening_;
  SaveCommands saving_;
  RecoverCommands recovering_;
  TransferCommands transfer_;
  ExchangeCommands exchange_;
  EditCommands editing_;
  DialogCommands dialogs_;

 public:
  Tree& tvwMainTree;    ///< the ladder of the document
  Tree& tvwExpression;  ///< the expressions of one Version
};

}  // namespace velra
