// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "protocol/Expression.h"
#include "protocol/ObjectForm.h"
#include "tool/Player.h"
#include "tool/RangeDialog.h"

namespace velra {

class ApplicationModule;
class LoadedVideoForm;
class TabScroll;
class VideoForm;
class VideoFormFaces;

/// What all forms of expressions share: one object for the program's life.
struct VideoFormServices {
  ApplicationModule& app;
  MediaGraphFactory makeGraph;
  VideoFormFaces& faces;
  RangeDialog dialog{};

  /// A form that was asked to show while the person moves from one expression to another.
  struct Wanted {
    VideoForm* form = nullptr;
    ExpressionRef obj;  // keeps the form
    FormOwner* owner = nullptr;
  };
  Wanted* wanted = nullptr;  // set only during such a move
};

/// The form of an expression. There is one for every expression of a document, so it holds next to
/// nothing until it shows.
class VideoForm : public ObjectForm {
 public:
  explicit VideoForm(VideoFormServices& services);
  ~VideoForm() override;
  VideoForm(const VideoForm&) = delete;
  VideoForm& operator=(const VideoForm&) = delete;

  /// kTypeMismatch for an object that is no expression.
  void setObject(const std::shared_ptr<DescribedObject>& object) override;

  /// Shows the form, and after it those to which the person moves in the tree, each when the one
  /// before has unloaded. A form that shows already stays as it is. A movie that cannot be opened
  /// ends the showing after its box; kNoObject when the expression is gone.
  void Show(FormOwner& owner) override;
  void Unload() override;

 private:
  using Wanted = VideoFormServices::Wanted;

  ExpressionRef showOnce(FormOwner& owner);
  bool loads(LoadedVideoForm& form);
  Wanted formOf(const ExpressionRef& obj, FormOwner& owner);

  VideoFormServices& services_;
  std::weak_ptr<Expression> obj_;
  LoadedVideoForm* loaded_ = nullptr;        // while it shows
  std::unique_ptr<TabScroll> arrTabScroll_;  // from the first showing on
};

}  // namespace velra
