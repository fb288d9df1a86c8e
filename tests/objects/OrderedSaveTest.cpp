// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/OrderedSave.h"

#include <gtest/gtest.h>

#include "store/ObjectRegistry.h"
#include "support/DocumentSession.h"
#include "support/RandomDocument.h"
#include "support/StubObject.h"

namespace velra {
namespace {

using test::DocumentSession;
using test::StubObject;
using test::upTo;
using Texts = std::vector<std::string>;

/// The plain way: walks from the last to the first, until one finds nothing changed.
bool plainSave(DocumentSession& session, const ObjectRegistry& objects,
               const RegisteredObject& document) {
  for (bool again = true; again;) {
    again = false;
    bool saved = false;
    int counter = 1;
    for (std::size_t position = objects.Count(); position >= 1; --position) {
      const RegisteredRef object = objects.Item(position);
      if (object.get() == &document || !object->bChanged()) continue;
      again = true;
      ++counter;
      const auto described = as<DescribedObject>(object);
      if (described && described->bReferedStillToBeSaved()) continue;
      session.window.setStrStatusBarText(session.app.messages.text(1137) + " " +
                                         std::to_string(counter) + " (" + object->strTitle() + ")");
      if (!object->bSave()) return false;
      saved = true;
    }
    if (again && !saved) return false;  // a ring; the walks would never end
  }
  return true;
}

struct Graph {
  ObjectRegistry objects;
  std::vector<std::shared_ptr<StubObject>> stubs;

  explicit Graph(unsigned seed) {
    std::mt19937 random(seed);
    const int count = upTo(random, 12) + 1;
    for (int i = 0; i < count; ++i) {
      stubs.push_back(std::make_shared<StubObject>("/o" + std::to_string(i)));
      stubs.back()->changed = upTo(random, 3) > 0;
      stubs.back()->canSave = upTo(random, 30) > 0;
    }
    for (int links = upTo(random, 2 * count); links > 0; --links) {
      stubs[index(random)]->waits.push_back(stubs[index(random)]);
    }
    for (const auto& stub : stubs) {
      if (upTo(random, 20) > 0) objects.Add(stub);
    }
  }
  ~Graph() {
    for (const auto& stub : stubs) stub->waits.clear();
  }
  Graph(const Graph&) = delete;
  Graph& operator=(const Graph&) = delete;

  std::string changed() const {
    std::string text;
    for (const auto& stub : stubs) text += stub->changed ? '*' : '.';
    return text;
  }

 private:
  std::size_t index(std::mt19937& random) const {
    return static_cast<std::size_t>(upTo(random, static_cast<int>(stubs.size()) - 1));
  }
};

TEST(OrderedSave, EqualsRepeatedWalks) {
  DocumentSession session;
  for (unsigned seed = 1; seed <= 400 && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    Graph ours(seed);
    const Graph plain(seed);
    const bool saved = bSaveInDependencyOrder(session.app, ours.objects, *ours.stubs.front());
    const Texts texts = session.window.takeStatusTexts();
    EXPECT_EQ(saved, plainSave(session, plain.objects, *plain.stubs.front()));
    EXPECT_EQ(texts, session.window.takeStatusTexts());
    EXPECT_EQ(ours.changed(), plain.changed());
  }
}

}  // namespace
}  // namespace velra
