// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tool/QtVideoForms.h"

#include "widgets/tool/PaintedPartsAccess.h"
#include "widgets/tool/VideoFormWindow.h"

namespace velra {

QtVideoForms::QtVideoForms(const ApplicationModule& app,
                           std::function<QWidget*(FormOwner&)> windowOf)
    : app_(app), windowOf_(std::move(windowOf)) {
  installPaintedPartsAccess();
}

std::unique_ptr<VideoFormFace> QtVideoForms::makeVideoForm(FormOwner& owner) {
  return std::make_unique<VideoFormWindow>(app_, windowOf_(owner));
}

}  // namespace velra
