// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QSize>

class QGroupBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QWidget;

namespace velra {

class AdvancedSliderWidget;
class StripView;
class VideoPictureWidget;

/// The controls of the tool's tab.
struct ToolControls {
  QPushButton* BackButt = nullptr;
  QLineEdit* txtTime = nullptr;
  VideoPictureWidget* picVideoWindow = nullptr;
  QPlainTextEdit* rtbTrans = nullptr;
  QGroupBox* VideoFrame = nullptr;
  AdvancedSliderWidget* advsld = nullptr;
  StripView* stripView = nullptr;
  QList<QPushButton*> playerButtons;
  QList<QPushButton*> segmentButtons;
};

/// Where the controls of the tool's tab stand, by the font and the size that the panel has when
/// this is made.
class ToolPanelLayout {
 public:
  ToolPanelLayout(const QWidget& panel, const ToolControls& controls);

  /// The least size of the panel, in pixels, that shows all controls.
  QSize leastSize() const;

  void placePlayerControls() const;
  void placeSegmentControls() const;

 private:
  const ToolControls& controls_;
  // Twips, from the form's top left corner; what depends on the font is not constant.
  int right_;
  int row_, frameTitle_;
  int back_, playerButton_, segmentButton_;
  int rightColumn_, pictureTop_, playerTop_, frameHeight_, frameTop_, timelineTop_, stripTop_;
};

}  // namespace velra
