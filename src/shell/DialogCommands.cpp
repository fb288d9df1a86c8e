// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/DialogCommands.h"

#include "app/ApplicationModule.h"
#include "shell/DialogPresenter.h"
#include "shell/SearchResultDialog.h"

namespace velra {

namespace {

constexpr std::int16_t kUsualPort = 2509;
constexpr const char* kUsualDataService = "/MediaArchive/datamanager";

}  // namespace

void DialogCommands::mnuFileFind() {
  if (!presenter_) return;
  searchDialog_.Show(*presenter_, window_);
  if (searchDialog_.bCancelPressed()) return;
  SearchResultDialog results(app_, icons_);
  results.ShowDialog(*presenter_, window_, searchDialog_.strText(), searchDialog_.bMatchCase(),
                     searchDialog_.bSingleWord());
}

void DialogCommands::mnuConnection() {
  if (!presenter_) return;
  ConnectionSettings settings;
  bool changed = true;  // going in: show it even though nothing is missing
  ShowConnectionDialog(settings, changed);
  if (changed) app_.WriteConnectionSettings(settings);
}

void DialogCommands::ShowConnectionDialog(ConnectionSettings& settings, bool& flag) {
  const bool complete = app_.bReadConnectionSettings(settings);
  if (!flag && complete) return;
  ConnectionSettings shown = settings;
  if (shown.iPort == 0) shown.iPort = kUsualPort;
  if (shown.strName.empty()) shown.strName = kUsualDataService;
  connectionDialog_.setSettings(shown);
  connectionDialog_.Show(*presenter_, window_);
  flag = connectionDialog_.bChanged();
  if (flag) settings = connectionDialog_.settings();
}

}  // namespace velra
