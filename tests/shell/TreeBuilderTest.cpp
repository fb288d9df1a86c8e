// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>

#include "Program.h"
#include "base/RunTimeError.h"
#include "protocol/ClassRules.h"
#include "schema/SEColl.h"
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

/// What the nodes of a Version's tree hold, a line for each, by the plain rules; up to the first
/// segment whose icon is missing, with its key in the place of all.
class PlainTree {
 public:
  PlainTree(const Version& version, const TreeIcons& icons) : icons_(icons) {
    add(version, version.className(), "");
    for (const ExpressionRef& main :
         {ExpressionRef(version.vdMainVideo()), ExpressionRef(version.auMainAudio()),
          ExpressionRef(version.trMainTranscript())}) {
      if (!main || failed_) continue;
      add(*main, main->className(), "  ");
      addSegments(main->colSubExpressions(), "    ");
    }
  }

  Texts texts() const { return failed_ ? Texts{texts_.back()} : texts_; }

 private:
  void add(const DescribedObject& object, const std::string& image, const std::string& indent) {
    texts_.push_back(indent + object.strTitle() + " " + image + " " + image + " " +
                     object.strGUID());
  }
  void addSegments(const ExpressionList& members, const std::string& indent) {
    ExpressionList seen;
    for (ExpressionRef at = plainHead(members); at && !failed_; at = at->objFollowedBy()) {
      if (std::find(seen.begin(), seen.end(), at) != seen.end()) return;
      seen.push_back(at);
      const bool video = at->kind() == ObjectKind::Video;
      const std::string image = video ? at->strGUID() : at->className();
      failed_ = !icons_.holds(image);
      if (failed_) return texts_.push_back(image);
      add(*at, image, indent);
      addSegments(at->colSubExpressions(), indent + "  ");
    }
  }

  const TreeIcons& icons_;
  Texts texts_;
  bool failed_ = false;
};

bool openGenerated(test::Program& program, std::mt19937& random, bool damaged) {
  const test::DocumentFiles files(program.folder);
  writeRandomDocument(files, random, damaged ? test::Damage::some(random) : test::Damage::none());
  program.mainForm.OpenFile(files.documentPath());
  if (program.document()) return true;
  const std::string last = program.ui.takeShown().back();
  EXPECT_NE(last.find("film_files/film_"), std::string::npos) << last << " names no file";
  return false;
}

// All that a node holds, and whether it hangs where it says.
void addNodes(const TreeNode& node, const std::string& indent, Texts& texts) {
  texts.push_back(indent + node.Text + " " + node.Image->key + " " + node.SelectedImage->key + " " +
                  node.Tag->strGUID());
  for (std::size_t row = 0; row < node.children.size(); ++row) {
    EXPECT_EQ(node.children[row]->row, row);
    EXPECT_EQ(node.children[row]->Parent, &node);
    addNodes(*node.children[row], indent + "  ", texts);
  }
}

// The icon that the error is about.
std::string missingIn(const std::string& description) {
  const std::size_t colon = description.find(": ");
  EXPECT_NE(colon, std::string::npos) << description;
  return description.substr(colon + 2);
}

/// A tree as it was built, or the error in its place.
struct Built {
  std::unique_ptr<TreeNode> root;
  std::uint64_t departures = 0;
  Texts texts;

  Built(test::Program& program, const std::shared_ptr<Version>& version, Built* before)
      : departures(program.document()->collObjects().departures()) {
    auto former = before ? std::move(before->root) : nullptr;
    if (former && before->departures != departures) LetObjectsGo(*former);
    const TreeIcons& icons = program.mainForm.imlTreeIcons();
    try {
      root = BuildExprTree(version, icons, std::move(former));
      addNodes(*root, "", texts);
    } catch (const RunTimeError& error) {
      texts.push_back(missingIn(error.description()));
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
    switch (random_() % 8) {
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
      case 5:  // a title that is not assigned is none
        return one->secol().field(rulesOf(one->kind()).titleField)->setBValid(random_() % 2 == 0);
      case 6:
        one->setStrGUID(one->strGUID() + "x");
        return program_.mainForm.UpdateSmallKeyFrames();
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

TEST(TreeBuilder, NodesStandByThePlainRulesNewAndAfterEdits) {
  std::size_t compared = 0;
  for (unsigned seed = 1; seed <= 24 && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    test::Program program;
    if (!openGenerated(program, random, seed % 2 == 0)) continue;
    const TreeIcons& icons = program.mainForm.imlTreeIcons();
    RandomEdits edits(program, random);
    for (const ObjectRef& each : ObjectList(program.document()->colChilds())) {
      const auto version = as<Version>(each);
      Built built(program, version, nullptr);
      EXPECT_EQ(test::firstDifference(built.texts, PlainTree(*version, icons).texts()), "");
      for (int step = 0; step < 15 && !HasFailure(); ++step) {
        edits.step();
        built = Built(program, version, &built);
        EXPECT_EQ(test::firstDifference(built.texts, PlainTree(*version, icons).texts()), "");
        compared += built.texts.size();
      }
    }
  }
  EXPECT_GT(compared, 1000u);
}

}  // namespace
}  // namespace velra
