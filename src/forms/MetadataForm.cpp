// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/MetadataForm.h"

#include "base/RunTimeError.h"
#include "base/ScopedValue.h"
#include "forms/FormPresenter.h"
#include "forms/LoadedForm.h"

namespace velra {

MetadataForm::MetadataForm(const MetadataKind& kind, ApplicationModule& app,
                           FormPresenter& presenter)
    : kind_(kind), app_(app), presenter_(presenter) {}

MetadataForm::~MetadataForm() = default;

void MetadataForm::setObject(const std::shared_ptr<DescribedObject>& object) {
  object_ = object;
}

void MetadataForm::Show(FormOwner& owner) {
  if (loaded_) return;
  const auto object = object_.lock();
  if (!object) raise(kNoObject);
  if (!arrTabScroll_) arrTabScroll_ = std::make_unique<TabScroll>();
  LoadedForm form(app_, kind_, object, *arrTabScroll_);
  const ScopedValue mark(loaded_, &form);
  form.Form_Load();
  presenter_.showForm(owner, form);
}

void MetadataForm::Unload() {
  if (loaded_) loaded_->Unload();
}

}  // namespace velra
