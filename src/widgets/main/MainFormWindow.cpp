// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main/MainFormWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>

#include "app/ApplicationModule.h"
#include "platform/UserInterface.h"
#include "protocol/OpenDocument.h"
#include "shell/PaneLayout.h"
#include "shell/frmMain.h"
#include "widgets/QtText.h"
#include "widgets/Twips.h"
#include "widgets/WindowPlace.h"
#include "widgets/dialogs/AboutDialog.h"
#include "widgets/drops/FileDrops.h"
#include "widgets/main/Icons.h"
#include "widgets/main/MainMenuBuilder.h"
#include "widgets/main/MainPanes.h"
#include "widgets/main/MainStatusBar.h"
#include "widgets/main/MainToolBar.h"
#include "widgets/main/NodeTreeView.h"
#include "widgets/main/SplashWindow.h"

namespace velra {

namespace {

constexpr int kSplashMilliseconds = 2000;
constexpr int kKeepMilliseconds = 250;  // after so long a change is in the store

}  // namespace

MainFormWindow::MainFormWindow(ApplicationModule& app, frmMain& rules)
    : app_(app),
      rules_(rules),
      icons_(rules.imlTreeIcons()),
      mainTree_(
          rules.tvwMainTree, [this](const std::string& key) { return icons_.icon(key); }, this),
      expressionTree_(
          rules.tvwExpression, [this](const std::string& key) { return icons_.icon(key); }, this) {
  setObjectName(QStringLiteral("frmMain"));
  setWindowTitle(QCoreApplication::applicationName());
  setWindowIcon(ownIcon(QStringLiteral("velra")));
  buildMainMenus(*this, *menuBar());
  tbToolBar_ = new MainToolBar(*this);
  addToolBar(tbToolBar_);
  panes_ = new MainPanes(mainTree_, expressionTree_, this);
  setCentralWidget(panes_);
  sbStatusBar_ = new MainStatusBar(this);
  setStatusBar(sbStatusBar_);
  connectTree(panes_->mainTree(), TreeId::tvwMainTree);
  connectTree(panes_->expressionTree(), TreeId::tvwExpression);
  new FileDrops(*this, [this](const QString& path, const QPoint& place) {
    const TreeNode* node = panes_->mainTree().nodeAt(place);
    return [this, path = pathFromQString(path), onto = node ? node->Tag : nullptr] {
      rules_.dropFile(path, onto);
    };
  });
  setMinimumWidth(pixelsFromTwips(kLeastWindowWidth));
  restorePlace(*this, app_.userSettings);
  panes_->setHeadings(text(Message::BibliographicData), text(Message::MultimediaData));
  timer1_.setObjectName(QStringLiteral("Timer1"));
  timer1_.setSingleShot(true);
  connect(&timer1_, &QTimer::timeout, this, [this] { delete splash_; });
  timer1_.start(kSplashMilliseconds);
  connect(&keeper_, &QTimer::timeout, this, &MainFormWindow::keepUnsavedWork);
  keeper_.start(kKeepMilliseconds);
  rules_.setFace(this);
  showMenuState(rules_.menuState());
}

MainFormWindow::~MainFormWindow() {
  rules_.setFace(nullptr);
}

UserInterface& MainFormWindow::ui() {
  return app_.ui;
}

QString MainFormWindow::text(Message message) const {
  return toQString(app_.LoadResString(message));
}

// Both go on in small pieces when nothing else is to be done.
void MainFormWindow::keepUnsavedWork() {
  const bool more = app_.gAVDoc && app_.gAVDoc->keepUnsavedWork();
  keeper_.start(more || app_.largePages.gatherSome() ? 0 : kKeepMilliseconds);
}

void MainFormWindow::connectTree(NodeTreeView& view, TreeId id) {
  connect(&view, &NodeTreeView::pressed, this,
          [this, id](MouseButton button) { rules_.treeMouseDown(id, button); });
  connect(&view, &NodeTreeView::nodeClicked, this, [this, &view, id](TreeNode& node) {
    menuPosition_ = view.menuPosition();
    rules_.nodeClicked(id, node);
  });
  connect(&view, &NodeTreeView::entered, this, [this, id] { rules_.treeEntered(id); });
  connect(&view, &NodeTreeView::formAsked, this, [this, id] {
    rules_.treeEntered(id);
    rules_.mnuEditMetadata();
  });
  connect(&view, &NodeTreeView::deleteReleased, this, [this, id] { rules_.DeleteNode(id); });
}

void MainFormWindow::showSplash() {
  // Showing it runs events, and after a slow start the tick is due: it would delete a window that
  // is not all shown. A box before it, about the vocabulary, may have stood until after the tick.
  const int left = timer1_.isActive() ? timer1_.remainingTime() : kSplashMilliseconds;
  timer1_.stop();
  splash_ = new SplashWindow(app_, this);
  splash_->show();
  timer1_.start(left);
  // Drawn before the work that may follow at once.
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void MainFormWindow::showAbout() {
  AboutDialog(app_, this).exec();
}

void MainFormWindow::toggleToolBar() {
  tbToolBar_->setVisible(tbToolBar_->isHidden());
}

void MainFormWindow::toggleStatusBar() {
  sbStatusBar_->setVisible(sbStatusBar_->isHidden());
}

void MainFormWindow::showStatusText(const std::string& text) {
  sbStatusBar_->showText(lineText(text));
}

void MainFormWindow::showMenuState(const MenuState& state) {
  velra::showMenuState(*this, state);
}

void MainFormWindow::popUpEditMenu() {
  findChild<QMenu*>(QStringLiteral("mnuEdit"))->popup(menuPosition_);
}

void MainFormWindow::iconsChanged() {
  icons_.forget();
  panes_->mainTree().viewport()->update();
  panes_->expressionTree().viewport()->update();
}

void MainFormWindow::showProgress(std::size_t done, std::size_t total) {
  sbStatusBar_->showProgress(done, total);
  if (done == 0) leave_.begin();
}

bool MainFormWindow::isLeaveAsked() {
  return leave_.isAsked();
}

void MainFormWindow::closeWindow() {
  close();
}

void MainFormWindow::closeEvent(QCloseEvent* event) {
  const QWidgetList windows = QApplication::topLevelWidgets();
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    if (*window != this && (*window)->isVisible()) (*window)->close();
  }
  storePlace(*this, app_.userSettings);
  event->accept();
  QCoreApplication::quit();
}

}  // namespace velra
