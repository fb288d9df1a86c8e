// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/ObjectRegistry.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/Paths.h"
#include "base/RunTimeError.h"

namespace velra {

ObjectRegistry::~ObjectRegistry() {
  clear();
}

void ObjectRegistry::Add(const RegisteredRef& object) {
  rekeyAfterFolderChange();
  if (places_.contains(object.get())) return;
  const std::uint64_t number = next_++;
  objects_.emplace_hint(objects_.end(), number, object);
  places_.emplace(object.get(), indexed(number, strAbsolutePath(object->strGUID())));
  object->setObjectListener(this);
  if (const auto* described = as<DescribedObject>(object.get())) references_.added(*described);
  if (object->bChanged()) markedChanged(*object);
}

bool ObjectRegistry::Remove(const RegisteredObject& object) {
  const auto at = places_.find(&object);
  if (at == places_.end()) return false;
  const Place place = at->second;
  const std::string key = place.key();
  places_.erase(at);
  unindex(place);
  changed_.erase(place.number);
  written_.erase(place.number);
  if (const auto* described = as<const DescribedObject>(&object)) references_.removed(*described);
  const auto entry = objects_.find(place.number);
  const RegisteredRef kept = entry->second;  // its end must not meet a half-changed list
  objects_.erase(entry);
  kept->setObjectListener(nullptr);
  numbers_.freed(key);
  return true;
}

RegisteredRef ObjectRegistry::Item(std::size_t position) const {
  if (position < 1 || position > objects_.size()) raise(kSubscriptOutOfRange);
  return std::next(objects_.begin(), static_cast<std::ptrdiff_t>(position) - 1)->second;
}

std::uint64_t ObjectRegistry::numberOf(const RegisteredObject& object) const {
  const auto at = places_.find(&object);
  return at == places_.end() ? 0 : at->second.number;
}

RegisteredList ObjectRegistry::changedObjects() {
  RegisteredList list;
  for (auto at = changed_.begin(); at != changed_.end();) {
    const RegisteredRef& object = objects_.at(*at);
    if (object->bChanged()) {
      list.push_back(object);
      ++at;
    } else {
      at = changed_.erase(at);
    }
  }
  return list;
}

void ObjectRegistry::referencesAdded(const DescribedObject& object) {
  references_.changed(object);
}

void ObjectRegistry::markedChanged(const RegisteredObject& object) {
  const std::uint64_t number = numberOf(object);
  if (number == 0) return;
  changed_.insert(number);
  written_.insert(number);
}

ObjectList ObjectRegistry::takeWritten(std::size_t most) {
  ObjectList list;
  while (!written_.empty() && list.size() < most) {
    auto object = as<DescribedObject>(objects_.at(*written_.begin()));
    if (object && object->bChanged()) list.push_back(std::move(object));
    written_.erase(written_.begin());
  }
  return list;
}

RegisteredList ObjectRegistry::all() const {
  RegisteredList list;
  list.reserve(objects_.size());
  for (const auto& [number, object] : objects_) list.push_back(object);
  return list;
}

ObjectList ObjectRegistry::described() const {
  ObjectList list;
  for (const auto& [number, object] : objects_) {
    if (auto described = as<DescribedObject>(object)) list.push_back(std::move(described));
  }
  return list;
}

const RegisteredRef* ObjectRegistry::firstWithKey(const std::string& key,
                                                  std::uint64_t& number) const {
  const auto [first, last] = byKey_.equal_range(key);
  if (first == last) return nullptr;
  number = first->second;
  for (auto at = first; at != last; ++at) number = std::min(number, at->second);
  return &objects_.at(number);
}

RegisteredRef ObjectRegistry::find(const std::string& guid) {
  rekeyAfterFolderChange();
  std::uint64_t number = 0;
  const RegisteredRef* found = firstWithKey(strAbsolutePath(guid), number);
  return found ? *found : nullptr;
}

std::size_t ObjectRegistry::positionOf(const std::string& guid) {
  rekeyAfterFolderChange();
  std::uint64_t number = 0;
  if (!firstWithKey(strAbsolutePath(guid), number)) return 0;
  const auto entry = objects_.find(number);
  return static_cast<std::size_t>(std::distance(objects_.begin(), entry)) + 1;
}

void ObjectRegistry::identifierChanged(const RegisteredObject& object) {
  const auto at = places_.find(&object);
  if (at == places_.end()) return;
  std::string key = strAbsolutePath(object.strGUID());
  const std::string old = at->second.key();
  if (key == old) return;
  unindex(at->second);
  at->second = indexed(at->second.number, std::move(key));
  numbers_.freed(old);
}

ObjectRegistry::Place ObjectRegistry::indexed(std::uint64_t number, std::string key) {
  return {number, &*byKey_.emplace(std::move(key), number)};
}

void ObjectRegistry::unindex(const Place& place) {
  const auto [first, last] = byKey_.equal_range(place.key());
  const auto at = std::find_if(
      first, last, [&](const Keys::value_type& entry) { return &entry == place.entry; });
  if (at != last) byKey_.erase(at);
}

void ObjectRegistry::rekeyAfterFolderChange() {
  if (folderGeneration_ == currentFolderGeneration()) return;
  folderGeneration_ = currentFolderGeneration();
  const Keys before = std::exchange(byKey_, {});
  for (auto& [object, place] : places_) {
    const std::string& old = place.key();
    place = indexed(place.number, strAbsolutePath(object->strGUID()));
    if (place.key() != old) numbers_.freed(old);
  }
}

void ObjectRegistry::clear() {
  for (const auto& [number, object] : objects_) object->setObjectListener(nullptr);
  places_.clear();
  byKey_.clear();
  changed_.clear();
  written_.clear();
  references_.clear();
  // An object may take others with it, and none of them may meet a list in the middle of its end.
  Sequence gone;
  gone.swap(objects_);
}

bool ObjectRegistry::checkConsistency() const {
  if (places_.size() != objects_.size() || byKey_.size() != objects_.size()) return false;
  for (const auto& [number, object] : objects_) {
    const auto place = places_.find(object.get());
    if (place == places_.end() || place->second.number != number) return false;
    const bool fresh = folderGeneration_ == currentFolderGeneration();
    if (fresh && place->second.key() != strAbsolutePath(object->strGUID())) return false;
    const auto [first, last] = byKey_.equal_range(place->second.key());
    bool indexed = false;
    for (auto at = first; at != last; ++at) indexed = indexed || at->second == number;
    if (!indexed || (object->bChanged() && !changed_.contains(number))) return false;
  }
  return numbers_.checkConsistency();
}

}  // namespace velra
