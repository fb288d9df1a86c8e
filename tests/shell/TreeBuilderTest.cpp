#include <gtest/gtest.h>

#include <algorithm>

#include "Program.h"
#include "support/FirstDifference.h"
#include "support/RandomDocument.h"

namespace velra {
namespace {

using Texts = std::vector<std::string>;

/// The plain rule for the head of a chain: every member is asked about each.
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

TEST(TreeBuilder, SegmentsStandInTheOrderOfThePlainRuleOnGeneratedDocuments) {
  int compared = 0;
  for (unsigned seed = 1; seed <= 12 && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    test::Program program;
    const test::DocumentFiles files(program.folder);
    test::Damage damage = test::Damage::none();
    damage.tangledSegments = seed % 2 == 0;
    writeRandomDocument(files, random, damage);
    program.mainForm.OpenFile(files.documentPath());
    if (!program.document()) continue;
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

}  // namespace
}  // namespace velra
