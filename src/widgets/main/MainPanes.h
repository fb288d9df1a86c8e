// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QFrame;
class QLabel;

namespace velra {

class NodeTreeView;
class SplitterHandle;
class TreeModel;

/// The two trees of the main window under their headings, with the splitter between them.
/// Ctrl+Tab takes the keyboard from one to the other.
class MainPanes : public QWidget {
  Q_OBJECT

 public:
  /// The models are not owned.
  MainPanes(TreeModel& mainTree, TreeModel& expressionTree, QWidget* parent);

  NodeTreeView& mainTree() { return *mainTree_; }
  NodeTreeView& expressionTree() { return *expressionTree_; }

  void setHeadings(const QString& main, const QString& expression);

  /// Lays the panes out anew with the splitter where it is.
  void layOut();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void connectSplitter();
  void connectKeys();
  void moveSplitter(int leftTwips);
  void dragBar(int leftTwips);

  QWidget* picTitles_;
  QLabel* headings_[2];
  NodeTreeView* mainTree_;
  NodeTreeView* expressionTree_;
  SplitterHandle* imgSplitter_;
  QFrame* picSplitter_;
  int splitterLeft_ = 3250;  // twips; half of the window's first width
  int barLeft_ = 0;          // twips, while the bar is dragged
};

}  // namespace velra
