#include "store/ReferenceIndex.h"

#include <algorithm>
#include <utility>

#include "base/Paths.h"
#include "store/ObjectRegistry.h"

namespace velra {

class ReferenceIndex::Collector : public ReferenceVisitor {
 public:
  Collector(ReferenceIndex& index, std::uint64_t holder) : index_(index), holder_(holder) {}

  void identifier(const std::string& guid) override { join(index_.byGuid_[strAbsolutePath(guid)]); }
  void object(const DescribedObject& object) override { join(index_.byObject_[&object]); }

 private:
  void join(Holders& holders) const {
    if (holders.empty() || holders.back() != holder_) holders.push_back(holder_);
  }

  ReferenceIndex& index_;
  const std::uint64_t holder_;
};

class ReferenceIndex::Checker : public ReferenceVisitor {
 public:
  Checker(const ReferenceIndex& index, std::uint64_t holder) : index_(index), holder_(holder) {}

  void identifier(const std::string& guid) override {
    check(index_.byGuid_, strAbsolutePath(guid));
  }
  void object(const DescribedObject& object) override { check(index_.byObject_, &object); }
  bool allKnown() const { return allKnown_; }

 private:
  template <class Map, class Key>
  void check(const Map& map, const Key& key) {
    const auto found = map.find(key);
    allKnown_ =
        allKnown_ && found != map.end() &&
        std::find(found->second.begin(), found->second.end(), holder_) != found->second.end();
  }

  const ReferenceIndex& index_;
  const std::uint64_t holder_;
  bool allKnown_ = true;
};

void ReferenceIndex::noteChange(const DescribedObject& object) {
  if (built_) changed_.insert(&object);
}

void ReferenceIndex::clear() {
  built_ = false;
  changed_.clear();
  byGuid_.clear();
  byObject_.clear();
}

void ReferenceIndex::collect(const DescribedObject& object) {
  Collector collector(*this, objects_.numberOf(object));
  object.visitReferences(collector);
}

void ReferenceIndex::bringUpToDate() {
  if (inBatch_) return;
  // Relative identifiers mean other paths when the current folder has changed.
  if (built_ && folderGeneration_ == currentFolderGeneration()) {
    for (const DescribedObject* object : std::exchange(changed_, {})) collect(*object);
    return;
  }
  clear();
  byGuid_.reserve(objects_.Count());
  byObject_.reserve(objects_.Count());
  for (const auto& [number, object] : objects_.sequence()) collect(*object);
  built_ = true;
  folderGeneration_ = currentFolderGeneration();
}

ReferenceIndex::Holders* ReferenceIndex::known(const std::string& guid) {
  const auto found = byGuid_.find(strAbsolutePath(guid));
  return found == byGuid_.end() ? nullptr : &found->second;
}

ReferenceIndex::Holders* ReferenceIndex::known(const DescribedObject& object) {
  const auto found = byObject_.find(&object);
  return found == byObject_.end() ? nullptr : &found->second;
}

// Numbers are given once, so that of an object that has gone names nobody.
ObjectList ReferenceIndex::listOf(Holders& holders) const {
  std::sort(holders.begin(), holders.end());
  holders.erase(std::unique(holders.begin(), holders.end()), holders.end());
  ObjectList list;
  std::erase_if(holders, [&](std::uint64_t number) {
    const auto at = objects_.sequence().find(number);
    if (at == objects_.sequence().end()) return true;
    list.push_back(at->second);
    return false;
  });
  return list;
}

ObjectList ReferenceIndex::holdersOf(const std::string& guid) {
  bringUpToDate();
  Holders* holders = known(guid);
  return holders ? listOf(*holders) : ObjectList{};
}

ObjectList ReferenceIndex::holdersOf(const DescribedObject& object) {
  bringUpToDate();
  Holders holders;
  for (const Holders* some : {known(object.strGUID()), known(object)}) {
    if (some) holders.insert(holders.end(), some->begin(), some->end());
  }
  return listOf(holders);
}

ReferenceIndex::Batch::Batch(ReferenceIndex& index) : index_(index) {
  index_.bringUpToDate();
  index_.inBatch_ = true;
}

void ReferenceIndex::Batch::renamed(const std::string& oldGUID, const std::string& newGUID) {
  const Holders* old = index_.known(oldGUID);
  if (!old) return;
  const Holders moved = *old;
  Holders& target = index_.byGuid_[strAbsolutePath(newGUID)];
  target.insert(target.end(), moved.begin(), moved.end());
}

void ReferenceIndex::Batch::removed(const DescribedObject& object, const DescribedObject& next) {
  const Holders* before = index_.known(object);
  if (!before) return;
  const Holders moved = *before;
  Holders& target = index_.byObject_[&next];
  for (const std::uint64_t holder : moved) {
    if (std::find(target.begin(), target.end(), holder) == target.end()) target.push_back(holder);
  }
}

bool ReferenceIndex::checkConsistency() {
  bringUpToDate();
  for (const auto& [number, object] : objects_.sequence()) {
    Checker checker(*this, number);
    object->visitReferences(checker);
    if (!checker.allKnown()) return false;
  }
  return true;
}

}  // namespace velra
