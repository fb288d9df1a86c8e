// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main/MainMenuBuilder.h"

#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

#include "platform/UserInterface.h"
#include "shell/frmMain.h"
#include "widgets/main/MainCommands.h"
#include "widgets/main/MainFormWindow.h"

namespace velra {

namespace {

using Kind = MenuEntry::Kind;

void runCommand(MainFormWindow& window, const MenuEntry& entry) {
  if (entry.run) {
    entry.run(window);
  } else {
    window.ui().messageBox(std::string("Add '") + entry.name + "_Click' code.");
  }
}

void addEntries(MainFormWindow& window, QMenu& menu, std::span<const MenuEntry> entries);

QAction* addMenu(MainFormWindow& window, QMenu& menu, const MenuEntry& entry) {
  QMenu* below = menu.addMenu(window.text(entry.caption));
  below->setObjectName(QLatin1String(entry.name));
  addEntries(window, *below, entry.entries);
  return below->menuAction();
}

QAction* addCommand(MainFormWindow& window, QMenu& menu, const MenuEntry& entry) {
  QAction* action = menu.addAction(window.text(entry.caption));
  action->setShortcut(QKeySequence(QLatin1String(entry.shortcut)));
  action->setAutoRepeat(false);  // a key that is held down has said it once
  action->setCheckable(entry.kind != Kind::Command);
  action->setChecked(entry.kind == Kind::Ticked);
  QObject::connect(action, &QAction::triggered, &window,
                   [&window, &entry] { runCommand(window, entry); });
  return action;
}

// The entries of a table live as long as the program.
void addEntries(MainFormWindow& window, QMenu& menu, std::span<const MenuEntry> entries) {
  auto* choices = new QActionGroup(&menu);
  for (const MenuEntry& entry : entries) {
    QAction* action = entry.kind == Kind::Separator ? menu.addSeparator()
                      : entry.kind == Kind::Menu    ? addMenu(window, menu, entry)
                                                    : addCommand(window, menu, entry);
    if (entry.kind == Kind::Choice) choices->addAction(action);
    action->setObjectName(QLatin1String(entry.name));
    action->setVisible(entry.visible);
  }
}

constexpr const char* kLanguages[] = {"mnuEnglish", "mnuItalian", "mnuDutch",
                                      "mnuGerman",  "mnuFrench",  "mnuCLDisabled"};

constexpr struct {
  const char* name;
  bool MenuState::*open;
} kStates[] = {{"mnuAddChild", &MenuState::mnuAddChild},
               {"mnuAddMainExpr", &MenuState::mnuAddMainExpr},
               {"mnuAddMainVideo", &MenuState::mnuAddMainVideo},
               {"mnuAddMainAudio", &MenuState::mnuAddMainAudio},
               {"mnuAddMainTranscript", &MenuState::mnuAddMainTranscript},
               {"mnuImportToFS", &MenuState::mnuImportToFS},
               {"mnuExportToDB", &MenuState::mnuExportToDB},
               {"mnuFileExportAs", &MenuState::mnuFileExportAs},
               {"mnuFileImport", &MenuState::mnuFileImport},
               {"mnuFileFindShots", &MenuState::mnuFileFindShots},
               {"mnuFileRecover", &MenuState::mnuFileRecover},
               {"mnuFileIndependent", &MenuState::mnuFileIndependent}};

}  // namespace

void buildMainMenus(MainFormWindow& window, QMenuBar& bar) {
  for (const MenuEntry& entry : mainMenus()) {
    QMenu* menu = bar.addMenu(window.text(entry.caption));
    menu->setObjectName(QLatin1String(entry.name));
    menu->menuAction()->setObjectName(QLatin1String(entry.name));
    addEntries(window, *menu, entry.entries);
  }
  window.findChild<QMenu*>(QStringLiteral("mnuView"))->setEnabled(false);
  QObject::connect(window.findChild<QMenu*>(QStringLiteral("mnuFile")), &QMenu::aboutToShow,
                   &window, [&window] { window.rules().mnuFile_Click(); });
}

void showMenuState(MainFormWindow& window, const MenuState& state) {
  for (const auto& row : kStates) {
    window.findChild<QAction*>(QLatin1String(row.name))->setEnabled(state.*row.open);
  }
  const char* language = kLanguages[static_cast<std::size_t>(state.language)];
  window.findChild<QAction*>(QLatin1String(language))->setChecked(true);
}

}  // namespace velra
