// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>

#include "base/RunTimeError.h"
#include "schema/SEColl.h"
#include "store/IOManager.h"
#include "support/DocumentSession.h"
#include "support/DocumentState.h"
#include "support/FirstDifference.h"
#include "support/RandomDocument.h"

namespace velra {
namespace {

using test::Damage;
using test::DocumentSession;
using test::stateOf;
using test::upTo;
using Texts = std::vector<std::string>;

using Removal = void (*)(AVDocument& document, const ObjectRef& object);

void removeByIndex(AVDocument& document, const ObjectRef& object) {
  EXPECT_EQ(object->strRemoveAllChilds(), "");
  ObjectRef removed = object;
  document.RemoveObject(removed);
}

/// The plain way asks every object about each removed one: those that the index leaves out must
/// have nothing to forget.
void askAllOthers(AVDocument& document, DescribedObject& removed) {
  const ObjectList holders = document.collObjects().references().holdersOf(removed);
  for (const ObjectRef& other : document.collObjects().described()) {
    if (std::find(holders.begin(), holders.end(), other) != holders.end()) continue;
    const std::string before = stateOf(*other);
    other->RemoveReferenceObj(removed);
    EXPECT_EQ(stateOf(*other), before) << "forgets " << removed.strGUID();
  }
}

void removePlainly(AVDocument& document, const ObjectRef& object) {
  for (ObjectRef removed : object->colSelSubTree()) {
    askAllOthers(document, *removed);
    document.RemoveObject(removed);
  }
}

/// The plain way to tell what a save has to write: all objects are asked.
RegisteredList plainChanged(const ObjectRegistry& objects) {
  RegisteredList changed = objects.all();
  std::erase_if(changed, [](const RegisteredRef& object) { return !object->bChanged(); });
  return changed;
}

void checkIndexes(AVDocument& document) {
  ObjectRegistry& objects = document.collObjects();
  EXPECT_EQ(objects.changedObjects(), plainChanged(objects));
  EXPECT_TRUE(objects.checkConsistency());
  EXPECT_TRUE(objects.references().checkConsistency());
  EXPECT_TRUE(document.io()->scans().checkConsistency());
}

ObjectRef firstVersion(const AVDocument& document) {
  return document.colChilds().empty() ? nullptr : document.colChilds().front();
}

/// A changed title, or the object as after a save.
void edit(DescribedObject& object, bool changed) {
  if (changed) object.setStrTitle("edited");
  for (SchemaElement& field : object.secol()) {
    if (!changed) field.setBChanged(false);
  }
}

/// What is left after three removals from a generated document; nothing when it does not open.
Texts stateAfter(DocumentSession& session, unsigned seed, Removal remove) {
  std::mt19937 random(seed);
  try {
    EXPECT_EQ(session.open(session.files.documentPath()), "");
  } catch (const RunTimeError&) {
    return {};
  }
  AVDocument& document = *session.document();
  for (int removals = 0; removals < 3; ++removals) {
    const int last = static_cast<int>(document.collObjects().Count());
    const auto object = as<DescribedObject>(
        document.collObjects().Item(static_cast<std::size_t>(upTo(random, last - 1)) + 1));
    if (!object || object.get() == &document) continue;
    remove(document, object);
    checkIndexes(document);
    // The next one follows after an edit, and in a third of the cases after a new reference.
    if (const ObjectRef version = firstVersion(document)) edit(*version, removals % 2 == 0);
    if (seed % 3 == 0) document.AddChild("new");
    checkIndexes(document);
  }
  Texts state = stateOf(document);
  for (const std::string& guid : document.colObjRemoved()) state.push_back("removed " + guid);
  for (const std::string& text : session.takeShown()) state.push_back("shown " + text);
  for (const std::string& icon : session.window.removedIcons) state.push_back("icon " + icon);
  return state;
}

TEST(Removal, EqualsThePlainRuleOnGeneratedDocuments) {
  for (unsigned seed = 1; seed <= 40 && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    DocumentSession session;
    writeRandomDocument(session.files, random,
                        seed % 2 == 0 ? Damage::none() : Damage::some(random));
    const Texts ours = stateAfter(session, seed, removeByIndex);
    session.close();
    session.app.gNotFound.clear();
    session.window.removedIcons.clear();
    session.takeShown();
    EXPECT_EQ(test::firstDifference(ours, stateAfter(session, seed, removePlainly)), "");
  }
}

TEST(Removal, TheLastChildLeavesTheFieldUnassignedAndAllItsFilesMarked) {
  DocumentSession session;
  session.files.smallLadder();
  ASSERT_EQ(session.open(session.files.documentPath()), "");
  const std::shared_ptr<Version> version = session.version("version1");
  version->setDDuration(60);
  removeByIndex(*session.document(), version);
  EXPECT_EQ(session.document()->secol().relationField("expressedby")->bValid(), false);
  const auto& removed = session.document()->colObjRemoved();
  EXPECT_EQ(
      Texts(removed.begin(), removed.end()),
      session.files.ids({"storage1", "media1", "video1", "audio1", "transcript1", "version1"}));
  EXPECT_EQ(version->dDuration(), 0);
  EXPECT_TRUE(session.document()->bSave());
  EXPECT_EQ(session.folder.read("film.xml").find("ExpressedBy"), std::string::npos);
  EXPECT_TRUE(session.document()->bSave());
  EXPECT_EQ(session.document()->io()->colGUIDToRemove().size(), 12U);
}

}  // namespace
}  // namespace velra
