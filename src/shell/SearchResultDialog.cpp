// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/SearchResultDialog.h"

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "platform/UserInterface.h"
#include "protocol/LongWork.h"
#include "protocol/OpenDocument.h"
#include "protocol/VideoExpression.h"
#include "shell/DialogPresenter.h"
#include "shell/SearchAhead.h"
#include "store/ObjectRegistry.h"

namespace velra {

namespace {

// As in the trees: a segment of a Video has the icon of its key frame.
std::string smallIconOf(const DescribedObject& object) {
  const auto* video = as<const VideoExpression>(&object);
  return video && video->objMainExpr() ? object.strGUID() : object.className();
}

}  // namespace

SearchResultDialog::SearchResultDialog(ApplicationModule& app, const TreeIcons& icons)
    : app_(app), icons_(icons) {}

void SearchResultDialog::ShowDialog(DialogPresenter& presenter, FormOwner& owner,
                                    const std::string& text, bool matchCase, bool singleWord) {
  strSearch_ = text;
  bCase_ = matchCase;
  bWord_ = singleWord;
  fillRows();
  presenter.showSearchResults(owner, *this);
  rows_.clear();
  onUnload = nullptr;
}

void SearchResultDialog::fillRows() {
  if (!app_.gAVDoc) raise(kNoObject);
  const auto busy = app_.ui.showBusy();
  rows_.clear();
  const ObjectList objects = app_.gAVDoc->collObjects().described();
  const LongWork work(app_.gMainForm, objects.size());
  SearchAhead search(objects, strSearch_, bCase_);
  for (std::size_t i = 0; i < objects.size(); ++i) {
    if (app_.gMainForm) app_.gMainForm->workSteps();
    const std::int16_t founds = search.hitsIn(i);
    if (founds <= 0) continue;
    const ObjectRef& object = objects[i];
    rows_.push_back(
        {object->className(), object->strTitle(), founds, smallIconOf(*object), object});
  }
}

void SearchResultDialog::ListView1_Click(const std::vector<std::size_t>& selected) {
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
