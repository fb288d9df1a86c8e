// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main/MainCommands.h"

#include "platform/UserInterface.h"
#include "shell/frmMain.h"
#include "widgets/main/MainFormWindow.h"

namespace velra {

namespace {

using Kind = MenuEntry::Kind;

void doNothing(MainFormWindow&) {}

void showHelp(MainFormWindow& window, const char* page) {
  if (window.guide().open(QLatin1String(page))) return;
  window.ui().messageBox(
      "Unable to display Help Contents. There is no Help associated with this project.");
}

template <int Language>
void choose(MainFormWindow& window) {
  window.rules().setLanguage(Language);
}

template <void (frmMain::*Command)()>
void call(MainFormWindow& window) {
  (window.rules().*Command)();
}

constexpr MenuEntry kFile[] = {
    {.name = "mnuFileOpen",
     .caption = Message::OpenDocument,
     .run = call<&frmMain::ShowOpenDialog>,
     .shortcut = "Ctrl+O"},
    {.name = "mnuFileSave",
     .caption = Message::Save,
     .run = call<&frmMain::mnuFileSave>,
     .shortcut = "Ctrl+S"},
    {.name = "mnuFileSaveAs",
     .caption = Message::SaveAs,
     .run = call<&frmMain::mnuFileSaveAs>,
     .shortcut = "Ctrl+Shift+S"},
    {.name = "mnuFileFind",
     .caption = Message::Find,
     .run = call<&frmMain::mnuFileFind>,
     .shortcut = "Ctrl+F"},
    {.name = "mnuFileBar1", .kind = Kind::Separator},
    {.name = "mnuFileNew",
     .caption = Message::New,
     .run = call<&frmMain::mnuFileNew>,
     .shortcut = "Ctrl+N"},
    {.name = "mnuFileMRU_1", .run = doNothing, .visible = false},
    {.name = "mnuFileMRU_2", .run = doNothing, .visible = false},
    {.name = "mnuFileMRU_3", .run = doNothing, .visible = false},
    {.name = "mnuFileBar4", .kind = Kind::Separator, .visible = false},
    {.name = "mnuImportToFS",
     .caption = Message::ImportToFileSystem,
     .run = call<&frmMain::mnuImportToFS>},
    {.name = "mnuExportToDB",
     .caption = Message::ExportToDatabase,
     .run = call<&frmMain::mnuExportToDB>},
    {.name = "mnuFileBar6", .kind = Kind::Separator},
    {.name = "mnuFileExportAs",
     .caption = Message::ExportAs,
     .run = call<&frmMain::mnuFileExportAs>},
    {.name = "mnuFileImport", .caption = Message::ImportFile, .run = call<&frmMain::mnuFileImport>},
    {.name = "mnuFileFindShots",
     .caption = Message::FindShots,
     .run = call<&frmMain::mnuFileFindShots>},
    {.name = "mnuFileRecover",
     .caption = Message::RecoverWork,
     .run = call<&frmMain::mnuFileRecover>},
    {.name = "mnuFileIndependent",
     .caption = Message::MakeIndependent,
     .run = call<&frmMain::mnuFileIndependent>},
    {.name = "mnuFileBar5", .kind = Kind::Separator},
    {.name = "mnuFileClose",
     .caption = Message::Close,
     .run = [](MainFormWindow& window) { window.closeWindow(); },
     .shortcut = "Ctrl+Q"},
};

constexpr MenuEntry kAddMainExpr[] = {
    {.name = "mnuAddMainVideo",
     .caption = Message::AddMainVideo,
     .run = [](MainFormWindow& window) { window.rules().AddMainExpr(ObjectKind::Video); }},
    {.name = "mnuAddMainAudio",
     .caption = Message::AddMainAudio,
     .run = [](MainFormWindow& window) { window.rules().AddMainExpr(ObjectKind::Audio); }},
    {.name = "mnuAddMainTranscript",
     .caption = Message::AddMainTranscript,
     .run = [](MainFormWindow& window) { window.rules().AddMainExpr(ObjectKind::Transcript); }},
};

constexpr MenuEntry kEdit[] = {
    {.name = "mnuEditMetadata",
     .caption = Message::EditMetadata,
     .run = call<&frmMain::mnuEditMetadata>,
     .shortcut = "F2"},
    {.name = "mnuEditAttributes",
     .caption = Message::EditFlags,
     .run = call<&frmMain::mnuEditAttributes>},
    {.name = "mnuAddChild", .caption = Message::AppendChild, .run = call<&frmMain::mnuAddChild>},
    {.name = "mnuAddMainExpr",
     .caption = Message::AddMainExpression,
     .kind = Kind::Menu,
     .entries = kAddMainExpr},
};

constexpr MenuEntry kView[] = {
    {.name = "mnuViewToolbar",
     .caption = Message::Toolbar,
     .kind = Kind::Ticked,
     .run = [](MainFormWindow& window) { window.toggleToolBar(); }},
    {.name = "mnuViewStatusBar",
     .caption = Message::StatusBar,
     .kind = Kind::Ticked,
     .run = [](MainFormWindow& window) { window.toggleStatusBar(); }},
    {.name = "mnuViewBar2", .kind = Kind::Separator},
    {.name = "mnuListViewMode_0",
     .caption = Message::LargeIcons,
     .kind = Kind::Choice,
     .run = doNothing},
    {.name = "mnuListViewMode_1",
     .caption = Message::SmallIcons,
     .kind = Kind::Choice,
     .run = doNothing},
    {.name = "mnuListViewMode_2", .caption = Message::List, .kind = Kind::Choice, .run = doNothing},
    {.name = "mnuListViewMode_3",
     .caption = Message::Details,
     .kind = Kind::Choice,
     .run = doNothing},
    {.name = "mnuViewBar3", .kind = Kind::Separator},
    {.name = "mnuViewArrangeIcons", .caption = Message::ArrangeIcons, .kind = Kind::Menu},
    {.name = "mnuViewBar4", .kind = Kind::Separator},
    {.name = "mnuViewRefresh", .caption = Message::Refresh},
    {.name = "mnuViewOptions", .caption = Message::ViewOptions},
    {.name = "mnuViewWebBrowser", .caption = Message::WebBrowser},
};

constexpr MenuEntry kLanguage[] = {
    {.name = "mnuEnglish", .caption = Message::English, .kind = Kind::Choice, .run = choose<0>},
    {.name = "mnuItalian", .caption = Message::Italian, .kind = Kind::Choice, .run = choose<1>},
    {.name = "mnuDutch", .caption = Message::Dutch, .kind = Kind::Choice, .run = choose<2>},
    {.name = "mnuGerman", .caption = Message::German, .kind = Kind::Choice, .run = choose<3>},
    {.name = "mnuFrench", .caption = Message::French, .kind = Kind::Choice, .run = choose<4>},
    {.name = "mnuCLDisabled",
     .caption = Message::CrossLanguageDisabled,
     .kind = Kind::Choice,
     .run = choose<5>},
};

constexpr MenuEntry kOptions[] = {
    {.name = "mnuConnection", .caption = Message::Connection, .run = call<&frmMain::mnuConnection>},
};

constexpr MenuEntry kHelp[] = {
    {.name = "mnuHelpContents",
     .caption = Message::HelpContents,
     .run = [](MainFormWindow& window) { showHelp(window, "index"); }},
    {.name = "mnuHelpSearchForHelpOn",
     .caption = Message::SearchForHelpOn,
     .run = [](MainFormWindow& window) { showHelp(window, "search"); }},
    {.name = "mnuHelpBar0", .kind = Kind::Separator},
    {.name = "mnuHelpAbout",
     .caption = Message::About,
     .run = [](MainFormWindow& window) { window.showAbout(); }},
};

constexpr MenuEntry kMenus[] = {
    {.name = "mnuFile", .caption = Message::FileMenu, .kind = Kind::Menu, .entries = kFile},
    {.name = "mnuEdit", .caption = Message::EditMenu, .kind = Kind::Menu, .entries = kEdit},
    {.name = "mnuView", .caption = Message::ViewMenu, .kind = Kind::Menu, .entries = kView},
    {.name = "mnuLanguage", .caption = Message::Language, .kind = Kind::Menu, .entries = kLanguage},
    {.name = "mnuOptions",
     .caption = Message::OptionsMenu,
     .kind = Kind::Menu,
     .entries = kOptions},
    {.name = "mnuHelp", .caption = Message::HelpMenu, .kind = Kind::Menu, .entries = kHelp},
};

constexpr ToolButton kToolButtons[] = {
    {"Back", Message::BackTip, "Back", "Add 'Back' button code."},
    {"Forward", Message::ForwardTip, "Forward", "Add 'Forward' button code."},
    {"Cut", Message::CutTip, "Cut", "Add 'mnuEditCut_Click' code."},
    {"Copy", Message::CopyTip, "Copy", "Add 'mnuEditCopy_Click' code."},
    {"Paste", Message::PasteTip, "Paste", "Add 'mnuEditPaste_Click' code."},
    {"Delete", Message::DeleteTip, "Delete", "Add 'mnuFileDelete_Click' code."},
    {"Properties", Message::PropertiesTip, "Properties", "Add 'mnuFileProperties_Click' code."},
    {"View Large Icons", Message::ViewLargeIconsTip, "ViewLargeIcons"},
    {"View Small Icons", Message::ViewSmallIconsTip, "ViewSmallIcons"},
    {"View List", Message::ViewListTip, "ViewList"},
    {"View Details", Message::ViewDetailsTip, "ViewDetails"},
};

}  // namespace

std::span<const MenuEntry> mainMenus() {
  return kMenus;
}

std::span<const ToolButton> toolButtons() {
  return kToolButtons;
}

}  // namespace velra
