// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QMenuBar;

namespace velra {

class MainFormWindow;
struct MenuState;

/// Fills the menu bar from the tables of commands. Every menu and action bears the entry's name.
void buildMainMenus(MainFormWindow& window, QMenuBar& bar);

/// Opens, closes and ticks the entries that the state is about.
void showMenuState(MainFormWindow& window, const MenuState& state);

}  // namespace velra
