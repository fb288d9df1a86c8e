// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "tool/ToolFace.h"

namespace velra {

class FormOwner;
class LoadedVideoForm;

/// The window of one showing of an expression's form. It decides nothing.
class VideoFormFace : public ToolFace {
 public:
  /// Makes the controls for a form whose boxes are there and whose movie is not yet, with
  /// timeline and strip in the width in which they will show.
  virtual void build(LoadedVideoForm& form) = 0;
  /// Drops the controls, since the form goes.
  virtual void unbuild() = 0;

  /// Shows the window over its owner, which takes nothing meanwhile, until `closeWindow`.
  virtual void showModally() = 0;
  virtual void closeWindow() = 0;
};

/// Makes windows; a script stands behind it in tests.
class VideoFormFaces {
 public:
  virtual ~VideoFormFaces() = default;

  virtual std::unique_ptr<VideoFormFace> makeVideoForm(FormOwner& owner) = 0;
};

}  // namespace velra
