// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main/MainCommands.h"

#include "platform/UserInterface.h"
#include "shell/frmMain.h"
#include "widgets/main/MainFormWindow.h"

namespace velra {

namespace {

using Kind = MenuEntry::Kind;

void doNothing(MainFormWindow&) {}

void showNoHelp(MainFormWindow& window) {
  window.ui().messageBox(
      "Unable to display Help Contents. There is no Help associated with this project.");
}

template <int kLanguage>
void choose(MainFormWindow& window) {
  window.rules().setLanguage(kLanguage);
}

template <void (frmMain::*kCommand)()>
void call(MainFormWindow& window) {
  (window.rules().*kCommand)();
}

constexpr MenuEntry kFile[] = {
    {.name = "mnuFileOpen", .caption = 1001, .run = call<&frmMain::ShowOpenDialog>},
    {.name = "mnuFileSave", .caption = 1080, .run = call<&frmMain::mnuFileSave>},
    {.name = "mnuFileSaveAs", .caption = 1130, .run = call<&frmMain::mnuFileSaveAs>},
    {.name = "mnuFileFind", .caption = 1002, .run = call<&frmMain::mnuFileFind>},
    {.name = "mnuFileBar1", .kind = Kind::Separator},
    {.name = "mnuFileNew",
     .caption = 1004,
     .run = call<&frmMain::mnuFileNew>,
     .shortcut = "Ctrl+N"},
    {.name = "mnuFileMRU_1", .run = doNothing, .visible = false},
    {.name = "mnuFileMRU_2", .run = doNothing, .visible = false},
    {.name = "mnuFileMRU_3", .run = doNothing, .visible = false},
    {.name = "mnuFileBar4", .kind = Kind::Separator, .visible = false},
    {.name = "mnuImportToFS", .caption = 1167, .run = call<&frmMain::mnuImportToFS>},
    {.name = "mnuExportToDB", .caption = 1165, .run = call<&frmMain::mnuExportToDB>},
    {.name = "mnuFileBar5", .kind = Kind::Separator},
    {.name = "mnuFileClose",
     .caption = 1008,
     .run = [](MainFormWindow& window) { window.closeWindow(); }},
};

constexpr MenuEntry kAddMainExpr[] = {
    {.name = "mnuAddMainVideo",
     .caption = 1111,
     .run = [](MainFormWindow& window) { window.rules().AddMainExpr("Video"); }},
    {.name = "mnuAddMainAudio",
     .caption = 1116,
     .run = [](MainFormWindow& window) { window.rules().AddMainExpr("Audio"); }},
    {.name = "mnuAddMainTranscript",
     .caption = 1117,
     .run = [](MainFormWindow& window) { window.rules().AddMainExpr("Transcript"); }},
};

constexpr MenuEntry kEdit[] = {
    {.name = "mnuEditMetadata", .caption = 1085, .run = call<&frmMain::mnuEditMetadata>},
    {.name = "mnuEditAttributes", .caption = 1084, .run = call<&frmMain::mnuEditAttributes>},
    {.name = "mnuAddChild", .caption = 1105, .run = call<&frmMain::mnuAddChild>},
    {.name = "mnuAddMainExpr", .caption = 1115, .kind = Kind::Menu, .entries = kAddMainExpr},
};

constexpr MenuEntry kView[] = {
    {.name = "mnuViewToolbar",
     .caption = 1018,
     .kind = Kind::Ticked,
     .run = [](MainFormWindow& window) { window.toggleToolBar(); }},
    {.name = "mnuViewStatusBar",
     .caption = 1019,
     .kind = Kind::Ticked,
     .run = [](MainFormWindow& window) { window.toggleStatusBar(); }},
    {.name = "mnuViewBar2", .kind = Kind::Separator},
    {.name = "mnuListViewMode_0", .caption = 1020, .kind = Kind::Choice, .run = doNothing},
    {.name = "mnuListViewMode_1", .caption = 1021, .kind = Kind::Choice, .run = doNothing},
    {.name = "mnuListViewMode_2", .caption = 1022, .kind = Kind::Choice, .run = doNothing},
    {.name = "mnuListViewMode_3", .caption = 1023, .kind = Kind::Choice, .run = doNothing},
    {.name = "mnuViewBar3", .kind = Kind::Separator},
    {.name = "mnuViewArrangeIcons", .caption = 1024, .kind = Kind::Menu},
    {.name = "mnuViewBar4", .kind = Kind::Separator},
    {.name = "mnuViewRefresh", .caption = 1025},
    {.name = "mnuViewOptions", .caption = 1026},
    {.name = "mnuViewWebBrowser", .caption = 1027},
};

constexpr MenuEntry kLanguage[] = {
    {.name = "mnuEnglish", .caption = 1141, .kind = Kind::Choice, .run = choose<0>},
    {.name = "mnuItalian", .caption = 1142, .kind = Kind::Choice, .run = choose<1>},
    {.name = "mnuDutch", .caption = 1143, .kind = Kind::Choice, .run = choose<2>},
    {.name = "mnuGerman", .caption = 1144, .kind = Kind::Choice, .run = choose<3>},
    {.name = "mnuFrench", .caption = 1145, .kind = Kind::Choice, .run = choose<4>},
    {.name = "mnuCLDisabled", .caption = 1163, .kind = Kind::Choice, .run = choose<5>},
};

constexpr MenuEntry kOptions[] = {
    {.name = "mnuConnection", .caption = 1175, .run = call<&frmMain::mnuConnection>},
};

constexpr MenuEntry kHelp[] = {
    {.name = "mnuHelpContents", .caption = 1037, .run = showNoHelp},
    {.name = "mnuHelpSearchForHelpOn", .caption = 1038, .run = showNoHelp},
    {.name = "mnuHelpBar0", .kind = Kind::Separator},
    {.name = "mnuHelpAbout",
     .caption = 1039,
     .run = [](MainFormWindow& window) { window.showAbout(); }},
};

constexpr MenuEntry kMenus[] = {
    {.name = "mnuFile", .caption = 1000, .kind = Kind::Menu, .entries = kFile},
    {.name = "mnuEdit", .caption = 1009, .kind = Kind::Menu, .entries = kEdit},
    {.name = "mnuView", .caption = 1017, .kind = Kind::Menu, .entries = kView},
    {.name = "mnuLanguage", .caption = 1140, .kind = Kind::Menu, .entries = kLanguage},
    {.name = "mnuOptions", .caption = 1174, .kind = Kind::Menu, .entries = kOptions},
    {.name = "mnuHelp", .caption = 1036, .kind = Kind::Menu, .entries = kHelp},
};

constexpr ToolButton kToolButtons[] = {
    {"Back", 1040, "Back", "Add 'Back' button code."},
    {"Forward", 1041, "Forward", "Add 'Forward' button code."},
    {"Cut", 1042, "Cut", "Add 'mnuEditCut_Click' code."},
    {"Copy", 1043, "Copy", "Add 'mnuEditCopy_Click' code."},
    {"Paste", 1044, "Paste", "Add 'mnuEditPaste_Click' code."},
    {"Delete", 1045, "Delete", "Add 'mnuFileDelete_Click' code."},
    {"Properties", 1046, "Properties", "Add 'mnuFileProperties_Click' code."},
    {"View Large Icons", 1047, "ViewLargeIcons"},
    {"View Small Icons", 1048, "ViewSmallIcons"},
    {"View List", 1049, "ViewList"},
    {"View Details", 1050, "ViewDetails"},
};

}  // namespace

std::span<const MenuEntry> mainMenus() {
  return kMenus;
}

std::span<const ToolButton> toolButtons() {
  return kToolButtons;
}

}  // namespace velra
