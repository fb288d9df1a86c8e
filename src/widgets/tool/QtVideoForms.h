// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

#include "shell/VideoFormFace.h"

namespace velra {

class ApplicationModule;

/// Makes the windows of expressions' forms.
class QtVideoForms : public VideoFormFaces {
 public:
  /// `windowOf` gives the window behind an owner; null for none.
  QtVideoForms(const ApplicationModule& app, std::function<QWidget*(FormOwner&)> windowOf);

  std::unique_ptr<VideoFormFace> makeVideoForm(FormOwner& owner) override;

 private:
  const ApplicationModule& app_;
  std::function<QWidget*(FormOwner&)> windowOf_;
};

}  // namespace velra
