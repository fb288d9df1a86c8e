// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/SearchResultDialog.h"

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "platform/UserInterface.h"
#include "protocol/OpenDocument.h"
#include "protocol/VideoExpression.h"
#include "shell/DialogPresenter.h"
#include "store/ObjectRegistry.h"

namespace velra {

namespace {

// As in the trees: a segment of a Video has the icon of its key frame.
std::string smallIconOf(const DescribedObject& object) {
  const auto* video = as<const VideoExpression>(&object);
  return video && video->objMainExpr() ? object.strGUID() : object.className();
}

}  // namespace

SearchResultDialog::SearchResultDialog(ApplicationModule& app, const TreeIcons& icons,
                                       const FirstStretch& first)
    : app_(app), icons_(icons), first_(first) {}

void SearchResultDialog::ShowDialog(DialogPresenter& presenter, FormOwner& owner,
                                    const std::string& text, bool matchCase, bool singleWord) {
  strSearch_ = text;
  bCase_ = matchCase;
  bWord_ = singleWord;
  beginSearch();
  presenter.showSearchResults(owner, *this);
  endSearch();
  rows_.clear();
  onUnload = nullptr;
  onSearched = nullptr;
}

void SearchResultDialog::beginSearch() {
  if (!app_.gAVDoc) raise(kNoObject);
  const auto busy = app_.ui.showBusy();
  rows_.clear();
  listed_ = 0;
  search_.emplace(app_.gAVDoc->collObjects().described(), strSearch_, bCase_);
  work_.emplace(app_.gMainForm, search_->objects().size());
  searchOn(first_.objects, first_.time);
}

bool SearchResultDialog::searchOn(std::chrono::milliseconds time) {
  if (bSearching()) searchOn(listed_ + 1, time);
  return bSearching();
}

void SearchResultDialog::searchOn(std::size_t place, std::chrono::milliseconds time) {
  search_->countOn(place, time);
  for (; listed_ < search_->counted(); ++listed_) listIfFound(listed_);
  if (listed_ == search_->objects().size()) endSearch();
  if (onSearched) onSearched();
}

// What the forms change is not to be found, nor missed.
void SearchResultDialog::searchToTheEnd() {
  if (!bSearching()) return;
  const auto busy = app_.ui.showBusy();
  searchOn(search_->objects().size(), {});
}

void SearchResultDialog::endSearch() {
  work_.reset();
  search_.reset();
}

void SearchResultDialog::listIfFound(std::size_t place) {
  if (app_.gMainForm) app_.gMainForm->workSteps();
  const std::int16_t founds = search_->hitsIn(place);
  if (founds <= 0) return;
  const ObjectRef& object = search_->objects()[place];
  rows_.push_back({object->className(), object->strTitle(), founds, smallIconOf(*object), object});
}

void SearchResultDialog::ListView1_Click(const std::vector<std::size_t>& selected) {
  if (!selected.empty()) searchToTheEnd();
  for (const std::size_t row : selected) {
    if (row < 1 || row > rows_.size()) raise(kSubscriptOutOfRange);
    const ObjectRef object = rows_[row - 1].Tag;
    object->ShowForm(*this);
  }
}

void SearchResultDialog::unload() {
  if (onUnload) onUnload();
}

}  // namespace velra
