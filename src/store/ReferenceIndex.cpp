#include "store/ReferenceIndex.h"

#include <algorithm>
#include <utility>

#include "base/Paths.h"
#include "store/ObjectRegistry.h"

namespace velra {

class ReferenceIndex::Collector : public ReferenceVisitor {
 public:
  Collector(ReferenceIndex& index, const DescribedObject& holder)
      : index_(index), holder_(holder), memberships_(index.memberships_[&holder]) {}

  void identifier(const std::string& guid) override { join(index_.byGuid_[strAbsolutePath(guid)]); }
  void object(const DescribedObject& object) override { join(index_.byObject_[&object]); }

 private:
  void join(Holders& holders) const {
    if (!holders.empty() && holders.back() == &holder_) return;
    holders.push_back(&holder_);
    memberships_.push_back(&holders);
  }

  ReferenceIndex& index_;
  const DescribedObject& holder_;
  Memberships& memberships_;
};

class ReferenceIndex::Checker : public ReferenceVisitor {
 public:
  Checker(const ReferenceIndex& index, const DescribedObject& holder)
      : index_(index), holder_(holder) {}

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
        std::find(found->second.begin(), found->second.end(), &holder_) != found->second.end();
  }

  const ReferenceIndex& index_;
  const DescribedObject& holder_;
  bool allKnown_ = true;
};

void ReferenceIndex::noteChange(const DescribedObject& object) {
  if (built_) changed_.insert(&object);
}

void ReferenceIndex::removed(const DescribedObject& object) {
  if (!built_) return;
  changed_.erase(&object);
  forget(object);
}

void ReferenceIndex::clear() {
  built_ = false;
  changed_.clear();
  byGuid_.clear();
  byObject_.clear();
  memberships_.clear();
}

void ReferenceIndex::forget(const DescribedObject& object) {
  const auto known = memberships_.find(&object);
  if (known == memberships_.end()) return;
  for (Holders* holders : known->second) std::erase(*holders, &object);
  memberships_.erase(known);
}

void ReferenceIndex::collect(const DescribedObject& object) {
  Collector collector(*this, object);
  object.visitReferences(collector);
}

void ReferenceIndex::bringUpToDate() {
  if (inBatch_) return;
  // Relative identifiers mean other paths when the current folder has changed.
  if (built_ && folderGeneration_ == currentFolderGeneration()) {
    for (const DescribedObject* object : std::exchange(changed_, {})) {
      forget(*object);
      collect(*object);
    }
    return;
  }
  clear();
  for (const auto& [number, object] : objects_.sequence()) collect(*object);
  built_ = true;
  folderGeneration_ = currentFolderGeneration();
}

ObjectList ReferenceIndex::listOf(Holders holders) const {
  std::vector<std::pair<std::uint64_t, ObjectRef>> found;
  std::sort(holders.begin(), holders.end());
  holders.erase(std::unique(holders.begin(), holders.end()), holders.end());
  for (const DescribedObject* holder : holders) {
    const std::uint64_t number = objects_.numberOf(*holder);
    if (number > 0) found.emplace_back(number, objects_.sequence().at(number));
  }
  std::sort(found.begin(), found.end());
  ObjectList list;
  list.reserve(found.size());
  for (auto& [number, object] : found) list.push_back(std::move(object));
  return list;
}

ObjectList ReferenceIndex::holdersOf(const std::string& guid) {
  bringUpToDate();
  const auto found = byGuid_.find(strAbsolutePath(guid));
  return found == byGuid_.end() ? ObjectList{} : listOf(found->second);
}

ObjectList ReferenceIndex::holdersOf(const DescribedObject& object) {
  bringUpToDate();
  Holders holders;
  if (const auto found = byGuid_.find(strAbsolutePath(object.strGUID())); found != byGuid_.end()) {
    holders = found->second;
  }
  if (const auto found = byObject_.find(&object); found != byObject_.end()) {
    holders.insert(holders.end(), found->second.begin(), found->second.end());
  }
  return listOf(std::move(holders));
}

ReferenceIndex::Batch::Batch(ReferenceIndex& index) : index_(index) {
  index_.bringUpToDate();
  index_.inBatch_ = true;
}

void ReferenceIndex::Batch::renamed(const std::string& oldGUID, const std::string& newGUID) {
  const auto old = index_.byGuid_.find(strAbsolutePath(oldGUID));
  if (old == index_.byGuid_.end()) return;
  const Holders moved = old->second;
  Holders& target = index_.byGuid_[strAbsolutePath(newGUID)];
  target.insert(target.end(), moved.begin(), moved.end());
  for (const DescribedObject* holder : moved) index_.memberships_[holder].push_back(&target);
}

void ReferenceIndex::Batch::removed(const DescribedObject& object, const DescribedObject& next) {
  const auto before = index_.byObject_.find(&object);
  if (before == index_.byObject_.end()) return;
  const Holders moved = before->second;
  Holders& target = index_.byObject_[&next];
  for (const DescribedObject* holder : moved) {
    if (std::find(target.begin(), target.end(), holder) != target.end()) continue;
    target.push_back(holder);
    index_.memberships_[holder].push_back(&target);
  }
}

bool ReferenceIndex::checkConsistency() {
  bringUpToDate();
  for (const auto& [number, object] : objects_.sequence()) {
    Checker checker(*this, *object);
    object->visitReferences(checker);
    if (!checker.allKnown()) return false;
  }
  return true;
}

}  // namespace velra
