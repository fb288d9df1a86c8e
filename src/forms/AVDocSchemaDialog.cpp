// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/AVDocSchemaDialog.h"

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "forms/FormPresenter.h"
#include "platform/UserInterface.h"
#include "schema/SEColl.h"

namespace velra {

AVDocSchemaDialog::AVDocSchemaDialog(ApplicationModule& app, FormPresenter& presenter)
    : app_(app), presenter_(presenter) {}

void AVDocSchemaDialog::ShowDialog(FormOwner& owner, SEColl& secol) {
  colSE_ = &secol;
  fillRows();
  presenter_.showSchemaDialog(owner, *this);
  rows_.clear();
  onUnload = nullptr;
  colSE_ = nullptr;
}

void AVDocSchemaDialog::fillRows() {
  rows_.clear();
  for (const SchemaElement& field : *colSE_) {
    rows_.push_back({field.bValid(), field.strName(), field.strType(), field.strComment()});
  }
}

bool AVDocSchemaDialog::setTicked(std::size_t row, bool ticked) {
  if (row < 1 || row > rows_.size()) raise(kSubscriptOutOfRange);
  const SchemaElement& field = colSE_->Item(row);
  if (!field.bIsHumanReadable() || field.bIgnore() || field.bReadOnly()) {
    app_.ui.beep();
    return false;
  }
  rows_[row - 1].ticked = ticked;
  return true;
}

void AVDocSchemaDialog::OKButton_Click() {
  for (std::size_t row = 1; row <= rows_.size(); ++row) {
    SchemaElement& field = colSE_->Item(row);
    const bool ticked = rows_[row - 1].ticked;
    if (field.bValid() == ticked) continue;
    if (ticked) field.Init(app_, colSE_->closeLists());
    field.setBChanged(true);
    field.setBValid(ticked);
  }
  bCancelFlag_ = false;
  unload();
}

void AVDocSchemaDialog::CancelButton_Click() {
  unload();
  bCancelFlag_ = true;
}

void AVDocSchemaDialog::unload() {
  if (onUnload) onUnload();
}

}  // namespace velra
