// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

#include "forms/FormFields.h"
#include "forms/FormTabs.h"
#include "tool/ExpressionTool.h"

namespace velra {

class VideoFormFace;
struct VideoFormServices;

/// An expression's form from its load to its end, without pixels: the tool on the first tab, and
/// behind it the boxes of the fields. It keeps its expression alive.
class LoadedVideoForm {
 public:
  LoadedVideoForm(VideoFormServices& services, const ExpressionRef& obj, TabScroll& arrTabScroll,
                  VideoFormFace& face);
  ~LoadedVideoForm();
  LoadedVideoForm(const LoadedVideoForm&) = delete;
  LoadedVideoForm& operator=(const LoadedVideoForm&) = delete;

  /// Builds boxes and window, and opens the movie. False when the form must not open: the person
  /// has been told.
  bool Form_Load();

  const ExpressionRef& obj() const { return tool_.obj; }
  ExpressionTool& tool() { return tool_; }
  FormFields& fields() { return fields_; }
  const FormTabs& tabs() const { return tabs_; }
  TabScroll& arrTabScroll() { return arrTabScroll_; }
  std::string caption() const { return obj()->strTitle(); }
  /// How often SetFrameHeight gives the panel its size; none leaves it as it was loaded.
  int framePasses() const;

  /// Takes the controls back into the fields and ends the form. Segment work is not touched.
  void OKButt_Click();
  void CancelButt_Click();
  /// Ends the form: its window closes.
  void Unload();

  /// The expression whose form is to show next; null when the person just closed this one.
  const ExpressionRef& next() const { return next_; }

 private:
  VideoFormServices& services_;
  VideoFormFace& face_;
  TabScroll& arrTabScroll_;
  FormTabs tabs_;
  FormFields fields_;
  ExpressionTool tool_;
  ExpressionRef next_;
};

}  // namespace velra
