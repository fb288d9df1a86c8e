// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QTimer>
#include <memory>

#include "shell/VideoFormFace.h"
#include "widgets/Announcer.h"
#include "widgets/QtText.h"

class QScrollArea;

namespace velra {

class ApplicationModule;
class GeneratedFormFace;
class LargePicture;
class ToolKeys;
class ToolPanel;

/// The window of an expression's form: the tool on the first tab, the boxes of the fields on the
/// others.
class VideoFormWindow : public QDialog, public VideoFormFace {
 public:
  VideoFormWindow(const ApplicationModule& app, QWidget* owner);
  ~VideoFormWindow() override;
  VideoFormWindow(const VideoFormWindow&) = delete;
  VideoFormWindow& operator=(const VideoFormWindow&) = delete;

  // What the form asks.
  void build(LoadedVideoForm& form) override;
  void unbuild() override;
  void showModally() override;
  void closeWindow() override;

  // What the tool asks.
  void movieOpens(MediaGraph& movie) override;
  void movieCloses() override;
  void showTimeCode(const std::string& text) override;
  void swapTimeCodeColours(bool swapped) override;
  void runTimer1(bool on) override;
  void runBlinkerTimer(bool on) override;
  void showTranscript(const std::string& text) override;
  void appendTranscript(const std::string& text) override;
  void showRangeDialog(RangeDialog& dialog) override;
  void announce(const std::string& sentence) override { announcer_.say(toQString(sentence)); }
  void announceTime(const std::string& text) override { announcer_.sayOften(toQString(text)); }
  void runPendingEvents() override;

  /// The close box does what Cancel does; Esc is a key of the tool.
  void reject() override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void makeTimers();
  void makePanelView();
  void makeLargePicture();
  void chooseSize();
  void placeParts();
  QSize panelSize() const;
  void showTab(int tab);

  const ApplicationModule& app_;
  Announcer& announcer_;
  LoadedVideoForm* form_ = nullptr;
  GeneratedFormFace* generated_ = nullptr;
  ToolPanel* panel_ = nullptr;
  QScrollArea* panelView_ = nullptr;  // scrolls the panel if the screen is too small for it
  std::unique_ptr<LargePicture> largePicture_;
  std::unique_ptr<ToolKeys> keys_;
  QTimer Timer1_;
  QTimer BlinkerTimer_;
};

}  // namespace velra
