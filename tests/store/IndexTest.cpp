// SPDX-License-Identifier: GPL-3.0-or-later

// The registry and the source of numbers, compared with plain walks under random operations.
#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <random>

#include "base/Paths.h"
#include "platform/files/Files.h"
#include "store/NumberSource.h"
#include "store/ObjectRegistry.h"
#include "store/ReferenceIndex.h"
#include "support/RandomDocument.h"
#include "support/StubObject.h"
#include "support/TemporaryFolder.h"

namespace velra {
namespace {

using test::StubObject;
using test::TemporaryFolder;
using test::upTo;

std::size_t plainPosition(const ObjectRegistry& objects, const std::string& guid) {
  std::size_t position = 0;
  for (const auto& [number, object] : objects.sequence()) {
    ++position;
    if (bSamePath(object->strGUID(), guid)) return position;
  }
  return 0;
}

std::string plainNumber(const ObjectRegistry& objects, const std::string& prefix) {
  for (int number = 1;; ++number) {
    const std::string path = prefix + std::to_string(number) + ".xml";
    if (plainPosition(objects, path) == 0 && !bFileExists(path)) return path;
  }
}

/// A registry, a source of numbers and a folder of files, under random operations.
class Indexes {
 public:
  explicit Indexes(unsigned seed) : random_(seed) {
    for (const char* name : {"here", "there"}) std::filesystem::create_directory(folder_ / name);
    changeCurrentFolder(folder_ / "here");
  }

  void step() {
    switch (upTo(random_, 9)) {
      case 0:
      case 1:
      case 2:
        return add(nextNumber());
      case 3:
        return add(anyIdentifier());
      case 4:
        return removeOne();
      case 5:
        if (const RegisteredRef object = any()) object->setStrGUID(anyIdentifier());
        return;
      case 6:
        return createFile();
      case 7:
        return deleteFile();
      case 8:
        return listOrNot();
      default:
        // Files of a listed folder stay as they are, so the folder may change at other times only.
        if (!listing_) changeCurrentFolder(folder_ / (upTo(random_, 1) == 0 ? "here" : "there"));
    }
  }

  void compare() {
    const std::string guid = anyIdentifier();
    EXPECT_EQ(objects_.positionOf(guid), plainPosition(objects_, guid)) << guid;
    EXPECT_EQ(nextNumber(), plainNumber(objects_, prefix()));
    EXPECT_TRUE(objects_.checkConsistency());
  }

 private:
  std::string prefix() const { return folder_ / "here/film_version"; }
  std::string nextNumber() { return objects_.numbers().take(prefix(), ".xml"); }
  std::string anyPath() { return prefix() + std::to_string(upTo(random_, 7) + 1) + ".xml"; }

  std::string anyIdentifier() {
    const std::string name = "film_version" + std::to_string(upTo(random_, 7)) + ".xml";
    const std::string forms[] = {"",
                                 name,
                                 "./x/../" + name,
                                 folder_ / "here//" + name,
                                 folder_ / "there/" + name,
                                 "../here/film_version01.xml"};
    return forms[upTo(random_, 5)];
  }
  RegisteredRef any() {
    if (objects_.Count() == 0) return nullptr;
    return objects_.Item(static_cast<std::size_t>(upTo(random_, int(objects_.Count()) - 1)) + 1);
  }
  void add(const std::string& guid) { objects_.Add(std::make_shared<StubObject>(guid)); }
  void removeOne() {
    if (const RegisteredRef object = any()) {
      EXPECT_TRUE(objects_.Remove(*object));
      EXPECT_FALSE(objects_.Remove(*object));
    }
  }
  void createFile() {
    const std::string path = anyPath();
    folder_.write("here/" + strFileName(path), "x");
    if (listing_) listing_->fileCame(path);
  }
  void deleteFile() {
    const std::string path = anyPath();
    if (std::filesystem::remove(path) && listing_) listing_->fileWent(path);
  }
  void listOrNot() {
    if (listing_) {
      listing_.reset();
    } else {
      listing_.emplace(objects_.numbers(), folder_ / "here");
    }
  }

  std::mt19937 random_;
  TemporaryFolder folder_;
  ObjectRegistry objects_;
  std::optional<NumberSource::Listing> listing_;
};

TEST(Indexes, AnswerAsThePlainWalksDo) {
  for (unsigned seed = 1; seed <= 12; ++seed) {
    SCOPED_TRACE(seed);
    Indexes indexes(seed);
    for (int step = 0; step < 80 && !::testing::Test::HasFailure(); ++step) {
      indexes.step();
      indexes.compare();
    }
  }
}

TEST(Indexes, SayWhenTheyWereNotTold) {
  ObjectRegistry objects;
  objects.Add(std::make_shared<StubObject>("/a/film_media1.xml"));
  EXPECT_TRUE(objects.checkConsistency());
  dynamic_cast<StubObject&>(*objects.Item(1)).setSecretly("/a/film_media9.xml");
  EXPECT_FALSE(objects.checkConsistency());
}

TEST(Indexes, ReferencesThatNobodyToldOfAreMissed) {
  ObjectRegistry objects;
  const auto parent = std::make_shared<StubObject>("/a/film_version1.xml");
  const auto child = std::make_shared<StubObject>("/a/film_media1.xml");
  parent->below = {child};
  objects.Add(parent);
  objects.Add(child);
  ReferenceIndex& index = objects.references();
  EXPECT_EQ(index.holdersOf(*child), ObjectList{parent});
  EXPECT_TRUE(index.checkConsistency());
  child->below = {parent};
  EXPECT_FALSE(index.checkConsistency());
  child->tellReferences();
  EXPECT_TRUE(index.checkConsistency());
  EXPECT_EQ(index.holdersOf(*parent), ObjectList{child});
  objects.Remove(*parent);
  EXPECT_TRUE(index.holdersOf(*child).empty());
  child->below.clear();
}

// A day of editing one object must not be kept in mind.
TEST(Indexes, ReferencesToldOfOverAndOverAreKeptOnce) {
  ObjectRegistry objects;
  const auto parent = std::make_shared<StubObject>("/a/film_version1.xml");
  const auto first = std::make_shared<StubObject>("/a/film_media1.xml");
  const auto second = std::make_shared<StubObject>("/a/film_media2.xml");
  for (const auto& object : {parent, first, second}) objects.Add(object);
  parent->below = {first, second};
  ReferenceIndex& index = objects.references();
  for (int i = 0; i < 10000; ++i) {
    parent->tellReferences();
    second->below = {first};
    second->tellReferences();
    ASSERT_EQ(index.holdersOf(*first), (ObjectList{parent, second}));
  }
  EXPECT_LT(index.size(), 2000u);
  second->below.clear();
}

TEST(Indexes, NumbersEndAt32767) {
  ObjectRegistry objects;
  NumberSource& numbers = objects.numbers();
  for (int number = 1; number <= 32767; ++number) {
    objects.Add(std::make_shared<StubObject>("/v" + std::to_string(number)));
  }
  EXPECT_THROW(numbers.take("/v", ""), RunTimeError);
  EXPECT_EQ(numbers.take("/w", ""), "/w1");
}

}  // namespace
}  // namespace velra
