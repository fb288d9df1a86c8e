// SPDX-License-Identifier: GPL-3.0-or-later
#include <QTabBar>
#include <QTreeView>

#include "Day.h"
#include "DayHands.h"

namespace velra::bench {

namespace {

constexpr TreeId kMain = TreeId::tvwMainTree;
constexpr TreeId kExpressions = TreeId::tvwExpression;

// Types a title into the form and takes it.
Act retitling(const char* field, bool tool) {
  return [=](QWidget& form) {
    if (tool) control<QTabBar>(form, "TabStrip1").setCurrentIndex(1);
    type(boxOf(form, QLatin1String(field)), QStringLiteral("a new title"));
    press(form, "OKButt");
  };
}

void openForms(Day& day) {
  const struct {
    const char* name;
    TreeId tree;
    const char* title;
    const char* field;
  } forms[] = {
      {"the form of the document, with the vocabulary", kMain, "film", "Title"},
      {"the form of a Version", kMain, "Cut 2", "VersionTitle"},
      {"the form of a Media", kMain, "MPEG", "Format"},
      {"the form of a Storage", kMain, "", "Text1"},
      {"the form of a Video", kExpressions, "Video 6", "Title"},
      {"the form of an Audio", kExpressions, "Audio 6", "Title"},
      {"the form of a Transcript", kExpressions, "Transcript 5", "Title"},
  };
  for (const auto& form : forms) {
    TreeNode& node = *form.title ? day.nodeOf(form.tree, form.title)
                                 : *day.nodeOf(kMain, "MPEG").children.front();
    clickNode(day.view(form.tree), node);
    day.step(form.name, [&] {
      willMeet({retitling(form.field, form.tree == kExpressions)});
      strikeAndWait(day.view(form.tree), Qt::Key_F2);
    });
  }
}

// Each below the one before.
void appendChildren(Day& day, const std::string& movie) {
  const struct {
    const char* name;
    const char* parent;
    Act answer;
  } children[] = {{"append a Version", "a new title", answering(QStringLiteral("Cut 3"))},
                  {"append a Media", "Cut 3", answering(QStringLiteral("DVD"))},
                  {"append a Storage", "DVD", choosingFile(movie)}};
  for (const auto& child : children) {
    clickNode(day.view(kMain), day.nodeOf(kMain, child.parent));
    day.step(child.name, [&] {
      willMeet({child.answer});
      choose(day.program.window, "mnuAddChild");
    });
  }
}

void removeNode(Day& day, const char* name, TreeId tree, TreeNode& node,
                Day::Kind kind = Day::Kind::Usual) {
  clickNode(day.view(tree), node);
  day.step(
      name,
      [&] {
        willMeet({pressing("cmdYes")});
        strikeAndWait(day.view(tree), Qt::Key_Delete);
        pause(1000);  // the store takes what goes
      },
      kind);
}

}  // namespace

void workOnForms(Day& day, const std::string& movie) {
  openForms(day);
  appendChildren(day, movie);
  clickNode(day.view(kMain), day.nodeOf(kMain, "Cut 1"));
  day.view(kExpressions).expandAll();
  removeNode(day, "remove a segment", kExpressions, day.nodeOf(kExpressions, "Video 7"));
  removeNode(day, "remove one with three below", kExpressions, day.nodeOf(kExpressions, "Video 9"));
  TreeNode& document = *day.program.rules.tvwMainTree.root();
  removeNode(day, "remove a Version with 12,000 below", kMain, *document.children[1],
             Day::Kind::Bulk);
  clickNode(day.view(kMain), day.nodeOf(kMain, "Cut 1"));
}

}  // namespace velra::bench
