// SPDX-License-Identifier: GPL-3.0-or-later

// The commands of the main window that open a dialog: search and connection.
#include "app/ApplicationModule.h"
#include "shell/DialogPresenter.h"
#include "shell/SearchResultDialog.h"
#include "shell/frmMain.h"

namespace velra {

namespace {

constexpr std::int16_t kUsualPort = 2509;
constexpr const char* kUsualDataService = "/MediaArchive/datamanager";

}  // namespace

void frmMain::mnuFileFind() {
  if (!dialogs_) return;
  searchDialog_.Show(*dialogs_, *this);
  if (searchDialog_.bCancelPressed()) return;
  SearchResultDialog results(app_, icons_);
  results.ShowDialog(*dialogs_, *this, searchDialog_.strText(), searchDialog_.bMatchCase(),
                     searchDialog_.bSingleWord());
}

void frmMain::mnuConnection() {
  if (!dialogs_) return;
  ConnectionSettings settings;
  bool changed = true;  // going in: show it even though nothing is missing
  ShowConnectionDialog(settings, changed);
  if (changed) app_.WriteConnectionSettings(settings);
}

void frmMain::ShowConnectionDialog(ConnectionSettings& settings, bool& flag) {
  const bool complete = app_.bReadConnectionSettings(settings);
  if (!flag && complete) return;
  ConnectionSettings shown = settings;
  if (shown.iPort == 0) shown.iPort = kUsualPort;
  if (shown.strName.empty()) shown.strName = kUsualDataService;
  connectionDialog_.setSettings(shown);
  connectionDialog_.Show(*dialogs_, *this);
  flag = connectionDialog_.bChanged();
  if (flag) settings = connectionDialog_.settings();
}

}  // namespace velra
