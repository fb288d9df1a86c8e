// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/OrderedSave.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <vector>

#include "app/ApplicationModule.h"
#include "protocol/MainWindow.h"
#include "store/ObjectRegistry.h"

namespace velra {

namespace {

constexpr int kNever = 0;

struct Waiting {
  ObjectRef object;
  std::vector<std::size_t> waiters;  // who waits for this one, by place
  std::size_t waitsFor = 0;
  int pass = kNever;  // in which walk it is saved; walks count from 1
};

// Sums over the places from one to the last, under changes of single places.
class CountFrom {
 public:
  explicit CountFrom(std::size_t size) : sums_(size + 1, 0) {
    for (std::size_t place = 0; place < size; ++place) add(place, 1);
  }
  void add(std::size_t place, int change) {
    for (std::size_t i = sums_.size() - 1 - place; i < sums_.size(); i += i & (~i + 1)) {
      sums_[i] += change;
    }
  }
  int from(std::size_t place) const {
    int sum = 0;
    for (std::size_t i = sums_.size() - 1 - place; i > 0; i -= i & (~i + 1)) sum += sums_[i];
    return sum;
  }

 private:
  std::vector<int> sums_;
};

std::vector<Waiting> changedObjects(ObjectRegistry& objects, const DescribedObject& document) {
  std::vector<Waiting> changed;
  for (const ObjectRef& object : objects.changedObjects()) {
    if (object.get() != &document) changed.push_back({object, {}, 0, kNever});
  }
  return changed;
}

void linkWaiters(std::vector<Waiting>& changed) {
  std::unordered_map<const DescribedObject*, std::size_t> places;
  for (std::size_t i = 0; i < changed.size(); ++i) places.emplace(changed[i].object.get(), i);
  for (std::size_t i = 0; i < changed.size(); ++i) {
    for (const ObjectRef& other : changed[i].object->waitsFor()) {
      if (!other->bChanged()) continue;
      ++changed[i].waitsFor;
      // One that is not in the list is never saved, and so the wait never ends.
      const auto place = places.find(other.get());
      if (place != places.end()) changed[place->second].waiters.push_back(i);
    }
  }
}

// An object is saved in the same walk as the last one that it waits for if that one stands behind
// it, since walks go backward; else in the next.
void findPasses(std::vector<Waiting>& changed) {
  std::vector<std::size_t> ready;
  std::vector<int> earliest(changed.size(), 1);
  for (std::size_t i = 0; i < changed.size(); ++i) {
    if (changed[i].waitsFor == 0) ready.push_back(i);
  }
  while (!ready.empty()) {
    const std::size_t place = ready.back();
    ready.pop_back();
    changed[place].pass = earliest[place];
    for (const std::size_t waiter : changed[place].waiters) {
      const int pass = changed[place].pass + (place < waiter ? 1 : 0);
      earliest[waiter] = std::max(earliest[waiter], pass);
      if (--changed[waiter].waitsFor == 0) ready.push_back(waiter);
    }
  }
}

std::vector<std::size_t> savingOrder(const std::vector<Waiting>& changed) {
  std::vector<std::size_t> order;
  for (std::size_t i = 0; i < changed.size(); ++i) {
    if (changed[i].pass != kNever) order.push_back(i);
  }
  std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    if (changed[a].pass != changed[b].pass) return changed[a].pass < changed[b].pass;
    return a > b;
  });
  return order;
}

bool saveOne(ApplicationModule& app, DescribedObject& object, int counter) {
  if (app.gMainForm) {
    app.gMainForm->setStrStatusBarText(app.LoadResString(Message::SavingObject) + " " +
                                       std::to_string(counter) + " (" + object.strTitle() + ")");
  }
  return object.bSave();
}

}  // namespace

bool bSaveInDependencyOrder(ApplicationModule& app, ObjectRegistry& objects,
                            const DescribedObject& document) {
  std::vector<Waiting> changed = changedObjects(objects, document);
  linkWaiters(changed);
  findPasses(changed);
  const std::vector<std::size_t> order = savingOrder(changed);
  CountFrom stillChanged(changed.size());
  for (std::size_t first = 0; first < order.size();) {
    const int pass = changed[order[first]].pass;
    std::size_t last = first;
    for (; last < order.size() && changed[order[last]].pass == pass; ++last) {
      const std::size_t place = order[last];
      if (!saveOne(app, *changed[place].object, 1 + stillChanged.from(place))) return false;
    }
    for (; first < last; ++first) stillChanged.add(order[first], -1);
  }
  return order.size() == changed.size();
}

}  // namespace velra
