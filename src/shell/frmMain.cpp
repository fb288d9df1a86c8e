// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frmMain.h"

#include "app/ApplicationModule.h"

namespace velra {

frmMain::frmMain(ApplicationModule& app)
    : app_(app),
      trees_(app, face_),
      menus_(app, face_),
      clicks_(app, face_, trees_, menus_),
      closing_(app, trees_),
      opening_(app, *this, trees_, clicks_, closing_),
      saving_(app, *this, closing_, opening_),
      recovering_(app, *this, closing_, opening_),
      transfer_(app, closing_, opening_, saving_),
      exchange_(app, *this, trees_),
      editing_(app, *this, trees_, clicks_),
      dialogs_(app, *this, trees_.icons()),
      tvwMainTree(trees_.tree(TreeId::tvwMainTree)),
      tvwExpression(trees_.tree(TreeId::tvwExpression)) {
  app_.gMainForm = this;
}

frmMain::~frmMain() {
  trees_.clear();
  if (app_.gMainForm == this) app_.gMainForm = nullptr;
}

void frmMain::setFace(MainWindowFace* face) {
  face_.set(face);
  face_.showMenuState(menus_.state());
}

void frmMain::setStrStatusBarText(const std::string& text) {
  statusText_ = text;
  face_.showStatusText(text);
}

void frmMain::workBegins(std::size_t parts, Leaving leaving) {
  workParts_ = parts;
  leaving_ = leaving;
  workDone_ = 0;
  face_.showProgress(0, parts);
}

void frmMain::workSteps() {
  if (workDone_ < workParts_) ++workDone_;
  workWaits();
}

void frmMain::workWaits() {
  if (workParts_ > 0) face_.showProgress(workDone_, workParts_);
  if (leaving_ == Leaving::AtOnce && face_.isLeaveAsked()) throw LeftInWork();
}

void frmMain::dropFile(const std::string& path, const ObjectRef& onto) {
  if (onto && onto->kind() == ObjectKind::Media && app_.gAVDoc) {
    editing_.appendStorage(onto, path);
  } else {
    opening_.OpenFile(path);
  }
}

void frmMain::UpdateSmallKeyFrames() {
  trees_.UpdateSmallKeyFrames();
}

}  // namespace velra
