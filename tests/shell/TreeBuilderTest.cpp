// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>

#include "Program.h"
#include "base/RunTimeError.h"
#include "shell/TreeBuilder.h"
#include "shell/TreeIcons.h"
#include "support/FirstDifference.h"
#include "support/RandomDocument.h"

namespace velra {
namespace {

using Texts = std::vector<std::string>;

/// The plain way to the head of a chain: every member is asked about each.
ExpressionRef plainHead(const ExpressionList& members) {
  for (const ExpressionRef& member : members) {
    const bool followed = std::any_of(members.begin(), members.end(), [&](const auto& other) {
      return other != member && other->objFollowedBy() == member;
    });
    if (!followed) return member;
  }
  return nullptr;
}

void addPlainTexts(const ExpressionList& members, const std::string& indent, Texts& texts) {
  ExpressionList seen;
  for (ExpressionRef at = plainHead(members); at; at = at->objFollowedBy()) {
    if (std::find(seen.begin(), seen.end(), at) != seen.end()) return;
    seen.push_back(at);
    texts.push_back(indent + at->strTitle());
    addPlainTexts(at->colSubExpressions(), indent + "  ", texts);
  }
}

Texts plainTexts(const Version& version) {
  Texts texts{version.strTitle()};
  for (const ExpressionRef& main :
       {ExpressionRef(version.vdMainVideo()), ExpressionRef(version.auMainAudio()),
        ExpressionRef(version.trMainTranscript())}) {
    if (!main) continue;
    texts.push_back("  " + main->strTitle());
    addPlainTexts(main->colSubExpressions(), "    ", texts);
  }
  return texts;
}

bool openGenerated(test::Program& program, std::mt19937& random, bool damaged) {
  const test::DocumentFiles files(program.folder);
  writeRandomDocument(files, random, damaged ? test::Damage::some(random) : test::Damage::none());
  program.mainForm.OpenFile(files.documentPath());
  if (program.document()) return true;
  const std::string last = program.ui.takeShown().back();
  EXPECT_NE(last.find("film_files/film_"), std::string::npos) << last << " names no file";
  return false;
}

TEST(TreeBuilder, SegmentsStandInTheOrderOfThePlainRuleOnGeneratedDocuments) {
  int compared = 0;
  for (unsigned seed = 1; seed <= 40 && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    test::Program program;
    if (!openGenerated(program, random, seed % 2 == 0)) continue;
    for (std::size_t i = 1; i <= program.document()->colChilds().size(); ++i) {
      program.click(TreeId::tvwMainTree, *program.version(i));
      EXPECT_EQ(test::firstDifference(program.texts(TreeId::tvwExpression),
                                      plainTexts(*program.version(i))),
                "");
      ++compared;
    }
  }
  EXPECT_GT(compared, 10);
}

// All that a node holds, and whether it hangs where it says.
void addNodes(const TreeNode& node, const std::string& indent, Texts& texts) {
  texts.push_back(indent + node.Text + " " + node.Image + " " + node.SelectedImage + " " +
                  node.Tag->strGUID());
  for (std::size_t row = 0; row < node.children.size(); ++row) {
    EXPECT_EQ(node.children[row]->row, row);
    EXPECT_EQ(node.children[row]->Parent, &node);
    addNodes(*node.children[row], indent + "  ", texts);
  }
}

/// A tree as it was built, or the error in its place.
struct Built {
  std::unique_ptr<TreeNode> root;
  Texts texts;

  Built(const std::shared_ptr<Version>& version, const TreeIcons& icons,
        std::unique_ptr<TreeNode> former) {
    try {
      root = BuildExprTree(version, icons, std::move(former));
      addNodes(*root, "", texts);
    } catch (const RunTimeError& error) {
      texts.push_back(error.description());
    }
  }
};

/// Changes what the tree of a Version is built from: by the ways of the program, and by some that
/// only a damaged document goes.
class RandomEdits {
 public:
  RandomEdits(test::Program& program, std::mt19937& random) : program_(program), random_(random) {}

  void step() {
    const ExpressionRef one = any();
    switch (random_() % 6) {
      case 0:
        return one->setStrTitle("title " + std::to_string(random_() % 100));
      case 1:
        return tangle(one->colSubExpressions());
      case 2:
        return program_.mainForm.RemoveIcon(one->strGUID());
      case 3:
        return program_.mainForm.UpdateSmallKeyFrames();
      case 4:
        return add(*one);
      default:
        return remove(one);
    }
  }

 private:
  ExpressionRef any() {
    ExpressionList all;
    for (const auto& [number, object] : program_.document()->collObjects().sequence()) {
      const auto expression = as<Expression>(object);
      if (expression) all.push_back(expression);
    }
    return all[random_() % all.size()];
  }
  void tangle(const ExpressionList& family) {
    if (family.empty()) return;
    const ExpressionRef& one = family[random_() % family.size()];
    one->setObjFollowedBy(random_() % 4 == 0 ? nullptr : family[random_() % family.size()]);
  }
  void add(Expression& parent) {
    if (parent.kind() == ObjectKind::Transcript)
      return;  // cut from its words, which there are none of
    const double start = static_cast<double>(random_() % 50);
    parent.AddSubExpression("cut " + std::to_string(start), start, start + 1);
  }
  void remove(const ExpressionRef& one) {
    if (!one->objMainExpr() || !one->strRemoveAllChilds().empty()) return;
    program_.mainForm.RemoveIcon(one->strGUID());
    ObjectRef object = one;
    program_.document()->RemoveObject(object);
  }

  test::Program& program_;
  std::mt19937& random_;
};

TEST(TreeBuilder, NodesOfAFormerTreeStandAsNewOnesWould) {
  std::size_t compared = 0;
  for (unsigned seed = 1; seed <= 8 && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    test::Program program;
    if (!openGenerated(program, random, seed % 2 == 0)) continue;
    const std::shared_ptr<Version> version = program.version(1);
    const TreeIcons& icons = program.mainForm.imlTreeIcons();
    RandomEdits edits(program, random);
    Built built(version, icons, nullptr);
    for (int step = 0; step < 60 && !HasFailure(); ++step) {
      edits.step();
      built = Built(version, icons, std::move(built.root));
      EXPECT_EQ(test::firstDifference(built.texts, Built(version, icons, nullptr).texts), "");
      compared += built.texts.size();
    }
  }
  EXPECT_GT(compared, 1000u);
}

}  // namespace
}  // namespace velra
