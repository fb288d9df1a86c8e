#include <gtest/gtest.h>

#include <random>

#include "base/RunTimeError.h"
#include "store/ObjectRegistry.h"
#include "support/DocumentSession.h"
#include "support/DocumentState.h"
#include "support/RandomDocument.h"

namespace velra {
namespace {

using test::DocumentSession;

/// What a removal leaves, in the order in which it happened.
struct Outcome {
  std::vector<std::string> state;
  std::vector<std::string> icons;
  std::vector<std::string> files;
  std::vector<std::string> shown;
  std::string message;

  bool operator==(const Outcome&) const = default;
};

/// The rule without any index: all objects are asked about each one that goes.
std::string removePlainly(AVDocument& document, DescribedObject& object) {
  ObjectList subTree = object.colSelSubTree();
  if (subTree.empty()) return object.strTitle() + " :open whole document first!";
  subTree.pop_back();
  for (ObjectRef& each : subTree) document.RemoveObject(each);
  return {};
}

Outcome removed(DocumentSession& session, const std::string& name, bool plainly) {
  session.open(session.files.documentPath());
  session.takeShown();
  session.window.removedIcons.clear();
  Outcome outcome;
  ObjectRef object = session.object(name);
  if (!object) return outcome;
  const auto document = session.document();
  try {
    outcome.message = plainly ? removePlainly(*document, *object) : object->strRemoveAllChilds();
    document->RemoveObject(object);
  } catch (const RunTimeError& error) {
    outcome.message = error.description();
  }
  outcome.state = test::stateOf(*document);
  outcome.icons = session.window.removedIcons;
  outcome.files = document->colObjRemoved();
  outcome.shown = session.takeShown();
  EXPECT_TRUE(document->collObjects().checkConsistency());
  return outcome;
}

TEST(Removal, OfAnySubTreeIsThatOfThePlainRule) {
  for (unsigned seed = 1; seed <= 12; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    DocumentSession session;
    const auto damage = seed % 2 ? test::Damage::none() : test::Damage::some(random);
    const auto names = writeRandomDocument(session.files, random, damage);
    for (std::size_t i = 0; i < names.size(); i += 1 + names.size() / 12) {
      SCOPED_TRACE(names[i]);
      const Outcome plain = removed(session, names[i], true);
      const Outcome indexed = removed(session, names[i], false);
      EXPECT_EQ(indexed.state, plain.state);
      EXPECT_TRUE(indexed == plain);
    }
    session.close();
  }
}

}  // namespace
}  // namespace velra
