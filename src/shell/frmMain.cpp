// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frmMain.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "objects/AVDocument.h"
#include "objects/Storage.h"
#include "objects/Version.h"
#include "platform/UserInterface.h"
#include "protocol/ObjectFactory.h"
#include "shell/MainWindowFace.h"
#include "shell/TreeBuilder.h"
#include "store/IOManager.h"

namespace velra {

frmMain::frmMain(ApplicationModule& app) : app_(app), connectionDialog_(app) {
  app_.gMainForm = this;
  menus_.language = app_.iLanguage;
}

frmMain::~frmMain() {
  tvwMainTree.clear();
  tvwExpression.clear();
  if (app_.gMainForm == this) app_.gMainForm = nullptr;
}

void frmMain::setFace(MainWindowFace* face) {
  face_ = face;
  if (face_) face_->showMenuState(menus_);
}

std::shared_ptr<AVDocument> frmMain::avDocument() const {
  return std::dynamic_pointer_cast<AVDocument>(app_.gAVDoc);
}

std::shared_ptr<ObjectForm> frmMain::frmAVDocFormInstance() {
  if (!frmAVDocForm_) frmAVDocForm_ = app_.objectFactory->createForm("AVDocument");
  return frmAVDocForm_;
}

void frmMain::setStrStatusBarText(const std::string& text) {
  statusText_ = text;
  if (face_) face_->showStatusText(text);
}

void frmMain::applyMenus(const MenuState& state) {
  if (menus_ == state) return;
  menus_ = state;
  if (face_) face_->showMenuState(menus_);
}

void frmMain::UpdateNodeTitle(const DescribedObject& object) {
  const std::string title = object.strTitle();
  tvwMainTree.walk([&](TreeNode& node) {
    if (node.Tag.get() == &object) tvwMainTree.setText(node, title);
    return true;
  });
  if (TreeNode* node = tvwExpression.find(object)) tvwExpression.setText(*node, title);
}

void frmMain::showMainTree() {
  tvwMainTree.clear();
  if (!app_.gAVDoc) raise(kNoObject);
  tvwMainTree.replace(BuildMainTree(app_.gAVDoc));
}

void frmMain::ShowAVDocTitle() {
  showMainTree();
  tvwMainTree.makeCurrent(*app_.gAVDoc);
  nodeClicked(TreeId::tvwMainTree, *tvwMainTree.root());
}

void frmMain::ResetTree(TreeId id, const ObjectRef& version) {
  std::unique_ptr<TreeNode> former = tree(id).take();
  if (id == TreeId::tvwMainTree) {
    showMainTree();
  } else if (version) {
    BuildExprTree(version, std::move(former));
  }
}

void frmMain::BuildExprTree(const ObjectRef& version, std::unique_ptr<TreeNode> former) {
  const auto object = std::dynamic_pointer_cast<Version>(version);
  if (!object) raise(kTypeMismatch);
  tvwExpression.replace(velra::BuildExprTree(object, icons_, std::move(former)));
}

void frmMain::RemoveIcon(const std::string& key) {
  icons_.remove(key);
  if (face_) face_->iconsChanged();
}

void frmMain::AddSmallKeyFrame(const Expression& video) {
  icons_.addKeyFrame(video.strGUID(), video.picKeyFrameSmall());
  if (face_) face_->iconsChanged();
}

// A main Video has no key frame and keeps its plain icon.
void frmMain::AddAllSmallKeyFrames() {
  if (!app_.gAVDoc) return;
  for (const auto& [number, object] : app_.gAVDoc->collObjects().sequence()) {
    if (object->className() != "Video") continue;
    const auto* video = dynamic_cast<const Expression*>(object.get());
    if (video && video->objMainExpr()) {
      icons_.addKeyFrame(video->strGUID(), video->picKeyFrameSmall());
    }
  }
  if (face_) face_->iconsChanged();
}

void frmMain::ResetListImageExpression() {
  icons_.removeKeyFrames();
  if (face_) face_->iconsChanged();
}

void frmMain::UpdateSmallKeyFrames() {
  ResetListImageExpression();
  AddAllSmallKeyFrames();
}

void frmMain::treeMouseDown(TreeId id, MouseButton button) {
  (id == TreeId::tvwMainTree ? iMainButton_ : iExprButton_) = button;
}

void frmMain::nodeClicked(TreeId id, TreeNode& node) {
  int& pending = id == TreeId::tvwMainTree ? iMainButton_ : iExprButton_;
  const int button = std::exchange(pending, kNoButton);
  tree(id).select(&node);
  treeEntered(id);
  const ObjectRef object = node.Tag;
  if (button == kRightButton) {
    if (face_) face_->popUpEditMenu();
  } else {
    leftClick(id, object);
  }
}

void frmMain::treeEntered(TreeId id) {
  const TreeNode* node = tree(id).selected();
  if (!node) return;
  bFromMainTree_ = id == TreeId::tvwMainTree;
  ContexMenuManager(*node->Tag, bFromMainTree_);
}

void frmMain::leftClick(TreeId id, const ObjectRef& object) {
  if (id != TreeId::tvwMainTree) return;
  if (const auto storage = std::dynamic_pointer_cast<Storage>(object)) {
    storage->setBIsSelected(true);
  } else if (object->className() == "Version") {
    BuildExprTree(object, nullptr);
  }
}

void frmMain::setLanguage(std::int32_t language) {
  if (menus_.language == language) return;
  MenuState menus = menus_;
  menus.language = language;
  applyMenus(menus);
  app_.iLanguage = language;
  if (language == ApplicationModule::kCrossLanguageOff) {
    app_.ui.messageBox(app_.LoadResString(Message::DisablingCrossLanguage));
  }
}

}  // namespace velra
