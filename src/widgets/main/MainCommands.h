// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeySequence>
#include <span>

#include "app/Message.h"

namespace velra {

class MainFormWindow;

/// One entry of a menu of the main window, in the order on screen.
struct MenuEntry {
  enum class Kind {
    Command,
    Ticked,     // bears a tick, set in the design
    Choice,     // one of a group of which exactly one is ticked
    Separator,  // has a name and nothing else
    Menu,       // opens the entries below it
  };

  const char* name;  // of the QAction or QMenu
  Message caption = Message::None;
  Kind kind = Kind::Command;
  /// What it calls. Null: the command has no function, and says so.
  void (*run)(MainFormWindow& window) = nullptr;
  const char* shortcut = "";
  std::span<const MenuEntry> entries{};
  bool visible = true;
};

/// The menus of the menu bar.
std::span<const MenuEntry> mainMenus();

/// One button of the tool bar.
struct ToolButton {
  const char* key;
  Message toolTip;
  const char* icon;               // name of the icon
  const char* literal = nullptr;  // what is said in a box; null: nothing happens
};

std::span<const ToolButton> toolButtons();

}  // namespace velra
