// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include "app/Message.h"
#include "shell/MainWindowFace.h"
#include "widgets/Guide.h"
#include "widgets/main/TreeIconPainter.h"
#include "widgets/main/TreeModel.h"
#include "widgets/progress/LeaveWatch.h"

namespace velra {

class ApplicationModule;
class MainPanes;
class MainStatusBar;
class MainToolBar;
class NodeTreeView;
class SplashWindow;
class UserInterface;
class frmMain;
enum class TreeId;

/// The main window on the screen. All that it decides is where things stand.
class MainFormWindow : public QMainWindow, public MainWindowFace {
  Q_OBJECT

 public:
  /// Loads the window, unseen. Both arguments outlive it.
  MainFormWindow(ApplicationModule& app, frmMain& rules);
  ~MainFormWindow() override;
  MainFormWindow(const MainFormWindow&) = delete;
  MainFormWindow& operator=(const MainFormWindow&) = delete;

  frmMain& rules() { return rules_; }
  UserInterface& ui();
  const Guide& guide() const { return guide_; }
  QString text(Message message) const;

  void showSplash();
  void showAbout();
  void toggleToolBar();
  void toggleStatusBar();
  /// Closes the window, which ends the program.
  void closeWindow();

  void showStatusText(const std::string& text) override;
  void showMenuState(const MenuState& state) override;
  void popUpEditMenu() override;
  void iconsChanged() override;
  void showProgress(std::size_t done, std::size_t total) override;
  bool isLeaveAsked() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void keepUnsavedWork();
  void connectTree(NodeTreeView& view, TreeId id);

  ApplicationModule& app_;
  frmMain& rules_;
  Guide guide_{app_};
  TreeIconPainter icons_;
  TreeModel mainTree_;
  TreeModel expressionTree_;
  MainToolBar* tbToolBar_ = nullptr;
  MainPanes* panes_ = nullptr;
  MainStatusBar* sbStatusBar_ = nullptr;
  QPointer<SplashWindow> splash_;
  QTimer timer1_{this};
  QTimer keeper_{this};
  LeaveWatch leave_{*this};
  QPoint menuPosition_;
};

}  // namespace velra
