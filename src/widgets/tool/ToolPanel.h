// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "widgets/tool/ToolPanelLayout.h"

namespace velra {

class ApplicationModule;
class ExpressionTool;
class MoviePictures;

/// The first tab of an expression's form: player, transcript, segment controls, timeline and strip.
/// It stands on the form's viewport. It forwards and shows; the tool decides.
class ToolPanel : public QWidget {
 public:
  /// The tool must outlive the panel.
  ToolPanel(const ApplicationModule& app, ExpressionTool& tool, QWidget* parent);

  /// The least size, in pixels, that shows all controls.
  QSize leastSize() const;

  void showTimeCode(const QString& text);
  void swapTimeCodeColours(bool swapped);
  void showTranscript(const QString& text);
  void appendTranscript(const QString& text);
  MoviePictures& pictures() { return *pictures_; }
  VideoPictureWidget& picture() { return *controls_.picVideoWindow; }

  /// The control that has the focus when the form opens.
  void focusFirst();

  /// Places the controls for the panel's present size, and tells timeline and strip their widths,
  /// also while nothing shows yet.
  void LayoutControls();

 private:
  using Command = void (*)(ExpressionTool&);

  void makePlayer(const ApplicationModule& app);
  void makeTranscript();
  void makeSegmentControls();
  void makeTabOrder();
  QPushButton* makeButton(const char* name, const QString& caption, const char* toolTip,
                          Command command, QWidget* parent);

  ExpressionTool& tool_;
  MoviePictures* pictures_;
  ToolControls controls_;
};

}  // namespace velra
