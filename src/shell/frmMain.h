// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "app/Message.h"
#include "protocol/DescribedObject.h"
#include "protocol/MainWindow.h"
#include "shell/ConnectionDialog.h"
#include "shell/MenuState.h"
#include "shell/SearchDialog.h"
#include "shell/Tree.h"
#include "shell/TreeIcons.h"

namespace velra {

class ApplicationModule;
class AVDocument;
class DialogPresenter;
class IOManager;
class MainWindowFace;

/// The mouse buttons of a press on a tree; the numbers are those of `iMainButton`.
enum MouseButton : int { kNoButton = -1, kLeftButton = 1, kRightButton = 2 };

/// The main window without its pixels: the two trees, their icons, and the commands of the menus.
class frmMain : public MainWindow {
 public:
  explicit frmMain(ApplicationModule& app);
  ~frmMain() override;
  frmMain(const frmMain&) = delete;
  frmMain& operator=(const frmMain&) = delete;

  /// Set while the window exists; null without one, as in tests.
  void setFace(MainWindowFace* face);
  /// Shows the dialogs of the commands; without one these commands do nothing.
  void setDialogPresenter(DialogPresenter* presenter) { dialogs_ = presenter; }

  Tree& tree(TreeId id) { return id == TreeId::tvwMainTree ? tvwMainTree : tvwExpression; }
  const TreeIcons& imlTreeIcons() const { return icons_; }
  const MenuState& menuState() const { return menus_; }

  // What objects and forms call.
  std::string strStatusBarText() const override { return statusText_; }
  void setStrStatusBarText(const std::string& text) override;
  void UpdateNodeTitle(const DescribedObject& object) override;
  void ResetTree(TreeId tree, const ObjectRef& version) override;
  void RemoveIcon(const std::string& key) override;
  void AddSmallKeyFrame(const Expression& video) override;
  void UpdateSmallKeyFrames() override;

  // The mouse and the keyboard on the trees.
  /// A press of a button on a tree, before the click on a node that it may become.
  void treeMouseDown(TreeId tree, MouseButton button);
  /// A node was clicked, or became the current one by the keyboard (then as by the left button).
  void nodeClicked(TreeId tree, TreeNode& node);
  /// The keyboard came to a tree: the commands of the Edit menu are for its selected node now.
  void treeEntered(TreeId tree);
  /// The release of the Delete key on a tree.
  void DeleteNode(TreeId tree);

  // The File menu.
  void mnuFile_Click();
  void ShowOpenDialog();
  void OpenFile(const std::string& strFile);
  void OpenDoc(const std::string& strDocGUID, bool bFileSystem);
  void mnuFileSave();
  void mnuFileSaveAs();
  void mnuFileNew();
  void mnuFileFind();
  void mnuExportToDB();
  void mnuImportToFS();
  /// Shows the document, with its node as if it had been clicked: the keyboard begins there.
  void ShowAVDocTitle();
  /// The document goes without a question, and with it the pictures that no saved object points at:
  /// the last step of a program that ends as it should.
  void releaseDocument();

  // The Edit menu.
  void ContexMenuManager(const DescribedObject& object, bool fromMainTree);
  void mnuEditMetadata();
  void mnuEditAttributes();
  void mnuAddChild();
  void AddMainExpr(const std::string& kind);

  /// A click on an entry of the language menu; the numbers are those of `iLanguage`.
  void setLanguage(std::int32_t language);

  void mnuConnection();

  Tree tvwMainTree;    ///< the ladder of the document
  Tree tvwExpression;  ///< the expressions of one Version

 private:
  static constexpr const char* kUnsavedTitle = "AVDocument";  // of one that was never saved

  std::shared_ptr<AVDocument> avDocument() const;
  bool documentIsOpen() const;
  bool needsDocument();
  void tellDone(Message command, const std::string& outcome);
  std::shared_ptr<ObjectForm> frmAVDocFormInstance();

  TreeNode* selectedNode();
  void showMainTree();
  void leftClick(TreeId tree, const ObjectRef& object);
  void applyMenus(const MenuState& state);
  void BuildExprTree(const ObjectRef& version, std::unique_ptr<TreeNode> former);
  void AddAllSmallKeyFrames();
  void ResetListImageExpression();

  void CloseDocument(bool bNoPrompt, bool& goOn);
  bool saveQuestionAnswered();
  void MarkUnsavedMediaObjects();
  std::shared_ptr<AVDocument> NewDocument();
  std::string openDocument(const std::string& path, const std::shared_ptr<IOManager>& io);
  void openOrFindDocument(const std::string& path, const std::shared_ptr<IOManager>& io);
  void openWithWantedObject(const std::string& wanted, const std::string& document,
                            const std::shared_ptr<IOManager>& io);
  void showOpenedDocument();
  void SaveDocumentAs();
  std::string GetFileName(const std::string& proposed);
  void transferObjects(bool toFileSystem);
  void saveAndReopen(const std::string& path, bool bFileSystem);
  void ShowConnectionDialog(ConnectionSettings& settings, bool& flag);

  std::string askNewChild(const DescribedObject& parent);
  std::string askMovie();
  bool movieFits(const DescribedObject& media, const std::string& movie);
  void showTreesWithout(TreeId tree, bool wasVersion);

  ApplicationModule& app_;
  MainWindowFace* face_ = nullptr;
  DialogPresenter* dialogs_ = nullptr;
  SearchDialog searchDialog_;
  ConnectionDialog connectionDialog_;
  TreeIcons icons_;
  MenuState menus_;
  std::string statusText_;
  int iMainButton_ = kNoButton;
  int iExprButton_ = kNoButton;
  bool bFromMainTree_ = false;
  std::shared_ptr<ObjectForm> frmAVDocForm_;
};

}  // namespace velra
