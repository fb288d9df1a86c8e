// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ShotsDialog.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "exchange/ContentText.h"
#include "platform/UserInterface.h"
#include "shell/DialogPresenter.h"

namespace velra {

ShotsDialog::ShotsDialog(ApplicationModule& app, ShotTask task, double rate)
    : app_(app), task_(std::move(task)), rate_(rate) {}

std::vector<FoundShot> ShotsDialog::Show(DialogPresenter& presenter, FormOwner& owner) {
  if (!search(task_.search)) return {};
  presenter.showShotsDialog(owner, *this);
  onUnload = nullptr;
  onRows = nullptr;
  std::vector<FoundShot> taken;
  for (std::size_t i = 0; taken_ && i < rows_.size(); ++i) {
    if (rows_[i].ticked) taken.push_back(shots_[i]);
  }
  return taken;
}

bool ShotsDialog::search(const ShotSearch& search) {
  FoundShots found;
  const bool awaited = app_.ui.workAtLength(
      app_.LoadResString(Message::SearchingShots),
      [&](const std::stop_token& stop, const std::function<void(double)>& tell) {
        found = findShots(task_.movie, search, stop, tell);
      });
  if (!awaited) return false;
  if (!found.reason.empty()) {
    app_.ui.messageBox(app_.messages.inLanguage(found.reason) + "\n" + task_.movie,
                       BoxKind::Exclamation);
    return false;
  }
  task_.search = search;
  shots_ = std::move(found.shots);
  rows_.clear();
  for (const FoundShot& shot : shots_) {
    rows_.push_back(
        {timeCodeOf(shot.start, rate_) + " - " + timeCodeOf(shot.end, rate_), shot.picture, true});
  }
  return true;
}

void ShotsDialog::setTicked(std::size_t row, bool ticked) {
  if (row < rows_.size()) rows_[row].ticked = ticked;
}

void ShotsDialog::SearchButton_Click(double threshold, double shortest) {
  ShotSearch wanted = task_.search;
  wanted.threshold = threshold;
  wanted.shortest = shortest;
  if (search(wanted) && onRows) onRows();
}

void ShotsDialog::OKButton_Click() {
  taken_ = true;
  if (onUnload) onUnload();
}

void ShotsDialog::CancelButton_Click() {
  if (onUnload) onUnload();
}

}  // namespace velra
