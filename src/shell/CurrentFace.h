// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/MainWindowFace.h"

namespace velra {

/// The face of the main window for those who tell it something: the one that exists now, or none,
/// as in tests and before the window is made.
class CurrentFace : public MainWindowFace {
 public:
  /// Null for none.
  void set(MainWindowFace* face) { face_ = face; }

  void showStatusText(const std::string& text) override {
    if (face_) face_->showStatusText(text);
  }
  void showMenuState(const MenuState& state) override {
    if (face_) face_->showMenuState(state);
  }
  void popUpEditMenu() override {
    if (face_) face_->popUpEditMenu();
  }
  void iconsChanged() override {
    if (face_) face_->iconsChanged();
  }
  void showProgress(std::size_t done, std::size_t total) override {
    if (face_) face_->showProgress(done, total);
  }
  bool isLeaveAsked() override { return face_ && face_->isLeaveAsked(); }

 private:
  MainWindowFace* face_ = nullptr;
};

}  // namespace velra
