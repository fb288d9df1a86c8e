// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/LoadedVideoForm.h"

#include "app/ApplicationModule.h"
#include "base/Arithmetic.h"
#include "forms/FormCommit.h"
#include "protocol/ClassRules.h"
#include "protocol/MainWindow.h"
#include "schema/SEColl.h"
#include "shell/VideoForm.h"
#include "shell/VideoFormFace.h"

namespace velra {

namespace {

constexpr const char* kOwnTab = "Video";

}  // namespace

LoadedVideoForm::LoadedVideoForm(VideoFormServices& services, const ExpressionRef& obj,
                                 TabScroll& arrTabScroll, VideoFormFace& face)
    : services_(services),
      face_(face),
      arrTabScroll_(arrTabScroll),
      tabs_(FormTabs::behindOwnTab(kOwnTab, obj->secol().iNumValidAndReadable())),
      tool_(obj, services.app, services.makeGraph, services.dialog, face) {
  tool_.onLeaveFor = [this](const ExpressionRef& target) {
    next_ = target;
    Unload();
  };
}

LoadedVideoForm::~LoadedVideoForm() {
  tool_.player.ClosePlayer();
  face_.unbuild();
}

bool LoadedVideoForm::Form_Load() {
  fields_.addFields(obj()->secol(), nullptr);
  face_.build(*this);
  // The words come before the movie, whose load ends with an update of their text.
  tool_.OpenTranscriptView();
  if (!tool_.LoadMovie()) return false;
  tool_.LoadSegments();
  return true;
}

int LoadedVideoForm::framePasses() const {
  return toInt16(obj()->iNumValidElem() / static_cast<double>(kBoxesOfATab));
}

void LoadedVideoForm::OKButt_Click() {
  commitForm(fields_, obj()->secol(), nullptr, rulesOf(obj()->kind()).titleField, [this] {
    if (services_.app.gMainForm) services_.app.gMainForm->UpdateNodeTitle(*obj());
  });
  Unload();
}

void LoadedVideoForm::CancelButt_Click() {
  Unload();
}

void LoadedVideoForm::Unload() {
  face_.closeWindow();
}

}  // namespace velra
