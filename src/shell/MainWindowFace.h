// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>

#include "shell/MenuState.h"

namespace velra {

/// The pixels of the main window: what its rules ask of them. It decides nothing. The window is
/// Qt's and stands above this folder, so that this is the wall between the two.
class MainWindowFace {
 public:
  virtual ~MainWindowFace() = default;

  virtual void showStatusText(const std::string& text) = 0;
  virtual void showMenuState(const MenuState& state) = 0;
  /// Opens the Edit menu at the pointer, or at the current node when it came from the keyboard.
  virtual void popUpEditMenu() = 0;
  /// The tree icons changed: the trees paint themselves anew.
  virtual void iconsChanged() = 0;
  /// So many parts of long work are done; a total of 0 ends it. No event of the window runs.
  virtual void showProgress(std::size_t done, std::size_t total) = 0;
  /// True when the person wants to leave the program since that began. Events of the window may
  /// run, but none that begins a command.
  virtual bool isLeaveAsked() = 0;
};

}  // namespace velra
