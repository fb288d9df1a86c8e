// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/LoadedForm.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "base/Arithmetic.h"
#include "base/RunTimeError.h"
#include "forms/CrossLanguageFields.h"
#include "forms/FormCommit.h"
#include "forms/MetadataKinds.h"
#include "platform/UserInterface.h"
#include "protocol/ClassRules.h"
#include "protocol/DescribedObject.h"
#include "protocol/MainWindow.h"
#include "schema/SEColl.h"

namespace velra {

LoadedForm::LoadedForm(ApplicationModule& app, const MetadataKind& kind,
                       std::shared_ptr<DescribedObject> object, TabScroll& arrTabScroll)
    : app_(app),
      kind_(kind),
      object_(std::move(object)),
      caption_(object_->strTitle()),
      tabs_(FormTabs::ofFields(object_->secol().iNumValidAndReadable())),
      arrTabScroll_(arrTabScroll) {}

LoadedForm::~LoadedForm() = default;

void LoadedForm::Form_Load() {
  const SEColl& secol = object_->secol();
  if (kind_.crossLanguage && app_.iLanguage != ApplicationModule::kCrossLanguageOff) {
    crossLanguage_ = std::make_unique<CrossLanguageFields>(app_);
    if (!crossLanguage_->bCLConsistent(secol)) {
      app_.ui.messageBox(app_.LoadResString(Message::CrossLanguageInconsistent));
      raise(kFormUnloaded);
    }
  }
  fields_.addFields(secol, crossLanguage_.get());
}

CrossLanguageFields* LoadedForm::crossLanguageFields() {
  return crossLanguage_.get();
}

int LoadedForm::framePasses() const {
  const double fields = kind_.frameHeight == FrameHeightRule::ValidElements
                            ? object_->iNumValidElem()
                            : object_->secol().iNumValidAndReadable() - 1;
  return toInt16(fields / kBoxesOfATab);
}

void LoadedForm::OKButt_Click() {
  const std::string& title = rulesOf(object_->kind()).titleField;
  commitForm(fields_, object_->secol(), crossLanguage_.get(), title, [this] {
    if (app_.gMainForm) app_.gMainForm->UpdateNodeTitle(*object_);
  });
  Unload();
}

void LoadedForm::CancelButt_Click() {
  Unload();
}

void LoadedForm::Unload() {
  if (onUnload) onUnload();
}

}  // namespace velra
