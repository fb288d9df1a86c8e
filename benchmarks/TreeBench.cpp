// SPDX-License-Identifier: GPL-3.0-or-later
#include "TreeBench.h"

#include <QApplication>
#include <algorithm>
#include <cstdio>

#include "BenchSchema.h"
#include "BenchSession.h"
#include "DocumentMaker.h"
#include "RunFolder.h"
#include "widgets/main/MainFormWindow.h"
#include "widgets/main/NodeTreeView.h"
#include "widgets/main/TreeIconPainter.h"

namespace velra::bench {

namespace {

constexpr std::size_t kIcons = 5000;
constexpr std::size_t kSamples = 100;

struct Figures {
  double nodes = 0;
  double build = 0;  // milliseconds
  double expand = 0;
  Times select;
  Times rename;
  Times firstRemove;
  Times remove;
  double iconMegabytes = 0;
};

class TreeSession {
 public:
  TreeSession(RunFolder& run, const std::string& schema, int segments)
      : session_(run.path(), schema), window_(session_.app, session_.mainForm) {
    session_.open(makeDocument(run.make("tree"), {1, 0, segments / 2}));
    window_.resize(1000, 700);
    window_.show();
    view_ = window_.findChild<NodeTreeView*>(QStringLiteral("tvwExpression"));
  }
  ~TreeSession() { session_.close(); }
  TreeSession(const TreeSession&) = delete;
  TreeSession& operator=(const TreeSession&) = delete;

  Figures measure() {
    Figures figures;
    Times builds;
    Times expansions;
    for (int i = 0; i < 5; ++i) {
      builds.takeWork([&] { showVersion(); });
      expansions.takeWork([&] { expandAll(); });
    }
    figures.build = builds.at(0);
    figures.expand = expansions.at(0);
    measureEdits(figures);
    measureRemovals(figures);
    figures.iconMegabytes = measureIcons();
    for (const std::string& box : session_.ui.takeShown()) {
      if (!box.starts_with("yes-no")) std::puts(box.c_str());
    }
    return figures;
  }

 private:
  static void draw() { QApplication::processEvents(); }

  void showVersion() {
    frmMain& rules = session_.mainForm;
    rules.treeMouseDown(TreeId::tvwMainTree, kLeftButton);
    rules.nodeClicked(TreeId::tvwMainTree, *rules.tvwMainTree.root()->children.front());
    draw();
  }
  void expandAll() {
    view_->expandAll();
    draw();
  }

  // As a click does; the view follows.
  void select(TreeNode& node) {
    view_->setCurrentIndex(dynamic_cast<TreeModel&>(*view_->model()).indexOf(node));
    session_.mainForm.treeMouseDown(TreeId::tvwExpression, kLeftButton);
    session_.mainForm.nodeClicked(TreeId::tvwExpression, node);
    draw();
  }

  std::vector<TreeNode*> nodes() {
    std::vector<TreeNode*> nodes;
    session_.mainForm.tvwExpression.walk([&](TreeNode& node) {
      nodes.push_back(&node);
      return true;
    });
    return nodes;
  }

  void measureEdits(Figures& figures) {
    const std::vector<TreeNode*> all = nodes();
    figures.nodes = static_cast<double>(all.size());
    for (std::size_t i = 1; i <= kSamples; ++i) {
      TreeNode& node = *all[i * (all.size() - 1) / kSamples];
      figures.select.takeWork([&] { select(node); });
      figures.rename.takeWork([&] {
        node.Tag->setStrTitle(node.Text + "x");
        session_.mainForm.UpdateNodeTitle(*node.Tag);
        draw();
      });
    }
  }

  // One leaf each time. The first removal is told alone: whatever is put off until then shows
  // there.
  void measureRemovals(Figures& figures) {
    for (std::size_t i = 0; i <= 20; ++i) {
      expandAll();
      const std::vector<TreeNode*> all = nodes();
      TreeNode* node = all[(i + 1) * (all.size() - 1) / 22];
      while (!node->children.empty()) node = node->children.back().get();
      select(*node);
      session_.ui.yesNo.push_back(true);
      (i == 0 ? figures.firstRemove : figures.remove).takeWork([&] {
        session_.mainForm.DeleteNode(TreeId::tvwExpression);
        draw();
      });
    }
  }

  double measureIcons() {
    std::vector<std::string> keys;
    for (const TreeNode* node : nodes()) {
      if (session_.mainForm.imlTreeIcons().keyFrame(node->Image->key))
        keys.push_back(node->Image->key);
    }
    if (keys.size() > kIcons) keys.resize(kIcons);
    const double before = heapBytes();
    TreeIconPainter painter(session_.mainForm.imlTreeIcons());
    for (const std::string& key : keys) painter.icon(key);
    return (heapBytes() - before) / 1e6;
  }

  BenchSession session_;
  MainFormWindow window_;
  NodeTreeView* view_ = nullptr;
};

}  // namespace

std::vector<Measure> measureTrees(const std::string& folder) {
  RunFolder run(folder);
  const std::string schema = makeSchema(run.path());
  const Figures small = TreeSession(run, schema, 1000).measure();
  const Figures large = TreeSession(run, schema, 50000).measure();
  const double more = large.nodes / small.nodes;
  return {
      {"build 50,000 nodes", large.build, "ms", 250},
      {"build, each node, 50,000 / 1,000", large.build / small.build / more, "", 2},
      {"expand all 50,000 nodes", large.expand, "ms", 250},
      {"expand all, each node, 50,000 / 1,000", large.expand / small.expand / more, "", 2},
      {"select one of 50,000, p95", large.select.p95(), "ms", 16},
      {"rename one of 50,000, p95", large.rename.p95(), "ms", 16},
      {"remove one of 50,000, the first", large.firstRemove.at(1), "ms", 200},
      {"remove one of 50,000, p95", large.remove.p95(), "ms", 200},
      {"memory of 5,000 icons drawn", large.iconMegabytes, "MB", 12},
  };
}

}  // namespace velra::bench
