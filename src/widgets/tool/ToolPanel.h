// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QGroupBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace velra {

class AdvancedSliderWidget;
class ApplicationModule;
class ExpressionTool;
class StripView;
class VideoPictureWidget;

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
  VideoPictureWidget& picture() { return *picVideoWindow_; }

  /// The control that has the focus when the form opens.
  void focusFirst();

  /// Places the controls for the panel's present size, and tells timeline and strip their widths,
  /// also while nothing shows yet.
  void LayoutControls();

 private:
  using Command = void (*)(ExpressionTool&);

  /// Places and sizes that depend on the font, in twips.
  struct Measures {
    int row, frameTitle;
    int back, playerButton, segmentButton;
    int rightColumn, pictureTop, playerTop, frameHeight, frameTop, timelineTop, stripTop;
  };

  Measures measures() const;
  void makePlayer(const ApplicationModule& app);
  void makeTranscript();
  void makeSegmentControls();
  void makeTabOrder();
  QPushButton* makeButton(const char* name, const QString& caption, const char* toolTip,
                          Command command, QWidget* parent);
  void LayoutPlayerControls();
  void LayoutSegmentControls();

  ExpressionTool& tool_;
  QPushButton* BackButt_ = nullptr;
  QLineEdit* txtTime_ = nullptr;
  VideoPictureWidget* picVideoWindow_;
  QPlainTextEdit* rtbTrans_ = nullptr;
  QGroupBox* VideoFrame_ = nullptr;
  AdvancedSliderWidget* advsld_;
  StripView* stripView_;
  QList<QPushButton*> playerButtons_;
  QList<QPushButton*> segmentButtons_;
};

}  // namespace velra
