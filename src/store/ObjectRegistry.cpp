// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/ObjectRegistry.h"

#include <utility>

#include "base/Paths.h"
#include "base/RunTimeError.h"

namespace velra {

namespace {

constexpr std::size_t kFewStale = 16;

// Objects are told of in their order, and each of them several times in a row.
void insertNearEnd(std::set<std::uint64_t>& numbers, std::uint64_t number) {
  if (!numbers.empty() && *numbers.rbegin() == number) return;
  numbers.insert(numbers.end(), number);
}

// Whether the normal form of its identifier is this path, which is one already.
bool isAt(const RegisteredObject& object, const std::string& path) {
  const std::string guid = object.strGUID();
  return guid == path || strAbsolutePath(guid) == path;
}

}  // namespace

ObjectRegistry::~ObjectRegistry() {
  static_cast<void>(takeAll());
}

bool ObjectRegistry::holds(const RegisteredObject& object) const {
  return object.place_.number != 0 && objects_.find(object.place_.number).get() == &object;
}

void ObjectRegistry::Add(const RegisteredRef& object) {
  references_.await();
  rekeyAfterFolderChange();
  if (holds(*object)) return;
  const PathKey key = pathKey(strAbsolutePath(object->strGUID()));
  object->place_ = {objects_.add(object), key};
  byKey_.add(key, object->place_.number);
  ++arrivals_;
  object->setObjectListener(this);
  if (const auto* described = as<DescribedObject>(object.get())) references_.added(*described);
  if (object->bChanged()) markedChanged(*object);
}

bool ObjectRegistry::Remove(const RegisteredObject& object) {
  references_.await();
  if (!holds(object)) return false;
  const auto [number, key] = object.place_;
  const RegisteredRef kept = objects_.find(number);  // its end must not meet a half-changed list
  changed_.erase(number);
  written_.erase(number);
  if (const auto* described = as<const DescribedObject>(&object)) references_.removed(*described);
  objects_.remove(number);
  kept->place_ = {};
  kept->setObjectListener(nullptr);
  departed(key);
  dropStaleKeys();
  return true;
}

RegisteredRef ObjectRegistry::Item(std::size_t position) const {
  if (position < 1 || position > objects_.size()) raise(kSubscriptOutOfRange);
  auto at = objects_.begin();
  while (--position > 0) ++at;
  return (*at).object;
}

std::uint64_t ObjectRegistry::numberOf(const RegisteredObject& object) const {
  return holds(object) ? object.place_.number : 0;
}

RegisteredList ObjectRegistry::changedObjects() {
  RegisteredList list;
  for (auto at = changed_.begin(); at != changed_.end();) {
    const RegisteredRef object = objects_.find(*at);
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
  insertNearEnd(changed_, number);
  insertNearEnd(written_, number);
}

ObjectList ObjectRegistry::takeWritten(std::size_t most) {
  ObjectList list;
  while (!written_.empty() && list.size() < most) {
    auto object = as<DescribedObject>(objects_.find(*written_.begin()));
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

RegisteredRef ObjectRegistry::firstAt(const std::string& path) const {
  RegisteredRef found;
  byKey_.any(pathKey(path), [&](PathIndex::Number number) {
    RegisteredRef object = objects_.find(number);
    const bool earlier = object && (!found || number < found->place_.number);
    if (earlier && isAt(*object, path)) found = std::move(object);
    return false;
  });
  return found;
}

RegisteredRef ObjectRegistry::find(const std::string& guid) {
  rekeyAfterFolderChange();
  return firstAt(strAbsolutePath(guid));
}

bool ObjectRegistry::isTaken(PathKey key) {
  rekeyAfterFolderChange();
  return byKey_.any(key, [this](PathIndex::Number number) { return objects_.contains(number); });
}

void ObjectRegistry::departed(PathKey key) {
  ++departures_;
  numbers_.freed(key);
}

std::uint64_t ObjectRegistry::arrivals() {
  rekeyAfterFolderChange();
  return arrivals_;
}

std::size_t ObjectRegistry::positionOf(const std::string& guid) {
  const RegisteredRef found = find(guid);
  std::size_t position = 0;
  for (const auto& [number, object] : objects_) {
    ++position;
    if (object == found) return position;
  }
  return 0;
}

void ObjectRegistry::identifierChanged(const RegisteredObject& object) {
  if (holds(object)) rekey(*objects_.find(object.place_.number));
}

void ObjectRegistry::rekey(RegisteredObject& object) {
  references_.await();
  const PathKey key = pathKey(strAbsolutePath(object.strGUID()));
  const PathKey old = object.place_.key;
  if (key == old) return;
  byKey_.remove(old, object.place_.number);
  object.place_.key = key;
  byKey_.add(key, object.place_.number);
  ++arrivals_;
  departed(old);
}

void ObjectRegistry::dropStaleKeys() {
  if (byKey_.size() < 2 * objects_.size() + kFewStale) return;
  byKey_.removeIf([this](PathIndex::Number number) { return !objects_.contains(number); });
}

void ObjectRegistry::rekeyAfterFolderChange() {
  if (folderGeneration_ == currentFolderGeneration()) return;
  folderGeneration_ = currentFolderGeneration();
  for (const auto& [number, object] : objects_) rekey(*object);
}

// An object may take others with it, and none of them may meet a list in the middle of its end.
ObjectRegistry::Contents ObjectRegistry::takeAll() {
  ReferenceIndex::Contents references = references_.takeAll();
  for (const auto& [number, object] : objects_) {
    object->setObjectListener(nullptr);
    object->documentCloses();
    object->place_ = {};
  }
  return {std::exchange(objects_, {}), std::exchange(byKey_, {}),   numbers_.takeWatch(),
          std::move(references),       std::exchange(changed_, {}), std::exchange(written_, {})};
}

bool ObjectRegistry::checkConsistency() const {
  if (byKey_.size() < objects_.size()) return false;
  for (const auto& [number, object] : objects_) {
    const PathKey key = object->place_.key;
    if (object->place_.number != number) return false;
    const bool fresh = folderGeneration_ == currentFolderGeneration();
    if (fresh && key != pathKey(strAbsolutePath(object->strGUID()))) return false;
    const bool indexed =
        byKey_.any(key, [own = number](PathIndex::Number any) { return any == own; });
    if (!indexed || (object->bChanged() && !changed_.contains(number))) return false;
  }
  return numbers_.checkConsistency();
}

}  // namespace velra
