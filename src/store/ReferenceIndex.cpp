// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/ReferenceIndex.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <system_error>
#include <utility>

#include "base/Paths.h"
#include "store/ObjectRegistry.h"
#include "store/PathKey.h"

namespace velra {

namespace {

constexpr std::size_t kFewFresh = 1024;
constexpr std::uint64_t kReferenceGroup = 512;  // objects, which are asked in some milliseconds

// The first ones, so many, are in order already.
template <class T>
void sortAndDropDoubles(std::vector<T>& list, std::size_t inOrder = 0) {
  const auto behind = list.begin() + static_cast<std::ptrdiff_t>(inOrder);
  std::sort(behind, list.end());
  std::inplace_merge(list.begin(), behind, list.end());
  list.erase(std::unique(list.begin(), list.end()), list.end());
}

}  // namespace

class ReferenceIndex::Collector : public ReferenceVisitor {
 public:
  Collector(std::vector<Reference>& found, std::uint64_t holder) : found_(found), holder_(holder) {}

  void identifier(const std::string& guid) override { found_.push_back({keyOf(guid), holder_}); }
  void object(const DescribedObject& object) override {
    found_.push_back({keyOf(object), holder_});
  }

 private:
  std::vector<Reference>& found_;
  const std::uint64_t holder_;
};

// The normal form of an identifier stands for all the ways in which it may be written.
ReferenceIndex::Key ReferenceIndex::keyOf(const std::string& guid) {
  return pathKey(strAbsolutePath(guid));
}

ReferenceIndex::Key ReferenceIndex::keyOf(const DescribedObject& object) {
  // The factor, 2 to the 64th over the golden ratio, spreads neighbours over the first bits.
  return std::hash<const DescribedObject*>{}(&object) * 0x9E3779B97F4A7C15U;
}

ReferenceIndex::Keys ReferenceIndex::keysOf(const DescribedObject& object) {
  return {keyOf(object.strGUID()), keyOf(object)};
}

void ReferenceIndex::noteChange(const DescribedObject& object) {
  await();
  if (built_) changed_.insert(&object);
}

ReferenceIndex::Contents ReferenceIndex::takeAll() {
  beside_ = {};  // which waits; what it raised nobody asks for any more
  return forgetAll();
}

ReferenceIndex::Contents ReferenceIndex::forgetAll() {
  built_ = false;
  slots_.clear();
  freshCount_ = 0;
  return {std::exchange(changed_, {}), std::exchange(settled_, {}), std::exchange(fresh_, {})};
}

std::vector<ReferenceIndex::Reference> ReferenceIndex::referencesOf(
    const DescribedObject& object) const {
  std::vector<Reference> found;
  Collector collector(found, objects_.numberOf(object));
  object.visitReferences(collector);
  return found;
}

void ReferenceIndex::build(const std::function<void()>& meanwhile) {
  forgetAll();
  for (const auto& [number, object] : objects_.sequence()) {
    const auto* described = as<DescribedObject>(object.get());
    if (!described) continue;
    if (number % kReferenceGroup == 0) meanwhile();
    Collector collector(settled_, number);
    described->visitReferences(collector);
  }
  meanwhile();
  order(0);
  settled_.shrink_to_fit();
  built_ = true;
  folderGeneration_ = currentFolderGeneration();
}

void ReferenceIndex::beginBeside() {
  try {
    beside_ = std::async(std::launch::async, [this] { build([] {}); });
  } catch (const std::system_error&) {  // without a further thread the first question builds it
  }
}

void ReferenceIndex::awaitWith(const std::function<void()>& meanwhile) {
  constexpr std::chrono::milliseconds kBetweenLooks{20};
  while (beside_.valid() && beside_.wait_for(kBetweenLooks) == std::future_status::timeout) {
    meanwhile();
  }
  await();
}

void ReferenceIndex::bringUpToDate(const std::function<void()>& meanwhile) {
  if (inBatch_) return;
  awaitWith(meanwhile);
  // Relative identifiers mean other paths when the current folder has changed.
  if (!built_ || folderGeneration_ != currentFolderGeneration()) return build(meanwhile);
  for (const DescribedObject* object : std::exchange(changed_, {})) {
    for (const Reference& reference : referencesOf(*object)) add(reference.key, reference.holder);
  }
}

void ReferenceIndex::add(Key key, std::uint64_t holder) {
  Holders& holders = fresh_[key];
  if (!holders.empty() && holders.back() == holder) return;
  holders.push_back(holder);
  ++freshCount_;
  if (freshCount_ > kFewFresh + settled_.size() / 4) settle();
}

// An object that changes often is asked often and told of as often; here it is counted once again.
void ReferenceIndex::settle() {
  const std::size_t inOrder = settled_.size();
  for (const auto& [key, holders] : fresh_) {
    for (const std::uint64_t holder : holders) settled_.push_back({key, holder});
  }
  order(inOrder);
  fresh_.clear();
  freshCount_ = 0;
}

void ReferenceIndex::order(std::size_t inOrder) {
  sortAndDropDoubles(settled_, inOrder);
  slots_.set(settled_);
}

void ReferenceIndex::appendHolders(Key key, Holders& holders) const {
  auto at = slots_.find(settled_, key);
  for (; at != settled_.end() && at->key == key; ++at) holders.push_back(at->holder);
  const auto fresh = fresh_.find(key);
  if (fresh == fresh_.end()) return;
  holders.insert(holders.end(), fresh->second.begin(), fresh->second.end());
}

// Numbers are given once, so that of an object that has gone names nobody.
ObjectRef ReferenceIndex::livingOf(std::uint64_t holder) const {
  return as<DescribedObject>(objects_.sequence().find(holder));
}

ObjectList ReferenceIndex::listOf(Holders holders) const {
  sortAndDropDoubles(holders);
  ObjectList list;
  for (const std::uint64_t holder : holders) {
    if (ObjectRef object = livingOf(holder)) list.push_back(std::move(object));
  }
  return list;
}

ObjectList ReferenceIndex::holdersOf(const std::string& guid) {
  bringUpToDate();
  Holders holders;
  appendHolders(keyOf(guid), holders);
  return listOf(std::move(holders));
}

ObjectList ReferenceIndex::holdersOf(const Keys& keys) {
  bringUpToDate();
  Holders holders;
  appendHolders(keys.identifier, holders);
  appendHolders(keys.object, holders);
  return listOf(std::move(holders));
}

std::vector<ReferenceIndex::Keys> ReferenceIndex::callKeysOf(
    std::span<const ObjectRef> objects) const {
  std::vector<Keys> keys;
  keys.reserve(objects.size());
  for (const ObjectRef& object : objects) {
    keys.push_back(keysOf(*object));
    slots_.callSlot(keys.back().identifier);
    slots_.callSlot(keys.back().object);
  }
  for (const Keys& one : keys) {
    slots_.callEntry(settled_, one.identifier);
    slots_.callEntry(settled_, one.object);
  }
  return keys;
}

ReferenceIndex::Batch::Batch(ReferenceIndex& index) : index_(index) {
  index_.bringUpToDate();
  index_.inBatch_ = true;
}

void ReferenceIndex::Batch::renamed(const std::string& oldGUID, const std::string& newGUID) {
  Holders moved;
  index_.appendHolders(keyOf(oldGUID), moved);
  const Key key = keyOf(newGUID);
  for (const std::uint64_t holder : moved) index_.add(key, holder);
}

void ReferenceIndex::Batch::removed(const DescribedObject& object, const DescribedObject& next) {
  Holders moved;
  index_.appendHolders(keyOf(object), moved);
  Holders known;
  index_.appendHolders(keyOf(next), known);
  for (const std::uint64_t holder : moved) {
    const bool isKnown = std::find(known.begin(), known.end(), holder) != known.end();
    // Those that have gone would follow a long chain to its end.
    if (!isKnown && index_.livingOf(holder)) index_.add(keyOf(next), holder);
  }
}

bool ReferenceIndex::checkConsistency() {
  bringUpToDate();
  for (const auto& [number, object] : objects_.sequence()) {
    const auto* described = as<DescribedObject>(object.get());
    if (!described) continue;
    for (const auto& [key, holder] : referencesOf(*described)) {
      Holders known;
      appendHolders(key, known);
      if (std::find(known.begin(), known.end(), holder) == known.end()) return false;
    }
  }
  return true;
}

}  // namespace velra
