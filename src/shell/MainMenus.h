// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "shell/MenuState.h"

namespace velra {

class ApplicationModule;
class DescribedObject;
class MainWindowFace;

/// Which entries of the main window's menus are open or ticked.
class MainMenus {
 public:
  MainMenus(ApplicationModule& app, MainWindowFace& face);

  const MenuState& state() const { return state_; }

  /// The menu of files opens.
  void mnuFile_Click();
  /// Opens and closes the entries of the Edit menu for an object.
  void ContexMenuManager(const DescribedObject& object, bool fromMainTree);
  /// A click on an entry of the language menu; the numbers are those of `iLanguage`.
  void setLanguage(std::int32_t language);

 private:
  void apply(const MenuState& state);

  ApplicationModule& app_;
  MainWindowFace& face_;
  MenuState state_;
};

}  // namespace velra
