// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/OrderedSave.h"

#include <algorithm>
#include <numeric>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "app/ApplicationModule.h"
#include "protocol/DescribedObject.h"
#include "protocol/MainWindow.h"
#include "protocol/PaintedWait.h"
#include "store/ObjectRegistry.h"

namespace velra {

namespace {

constexpr int kNever = 0;

struct Waiting {
  RegisteredRef object;
  std::vector<std::size_t> waiters;  // who waits for this one, by place
  std::size_t waitsFor = 0;
  int pass = kNever;  // in which walk it is saved; walks count from 1
};

std::vector<Waiting> changedObjects(ObjectRegistry& objects, const RegisteredObject& document) {
  std::vector<Waiting> changed;
  for (const RegisteredRef& object : objects.changedObjects()) {
    if (object.get() != &document) changed.push_back({object, {}, 0, kNever});
  }
  return changed;
}

void linkWaiters(std::vector<Waiting>& changed) {
  std::unordered_map<const RegisteredObject*, std::size_t> places;
  for (std::size_t i = 0; i < changed.size(); ++i) places.emplace(changed[i].object.get(), i);
  for (std::size_t i = 0; i < changed.size(); ++i) {
    const auto* described = as<DescribedObject>(changed[i].object.get());
    if (!described) continue;
    for (const ObjectRef& other : described->waitsFor()) {
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
std::vector<Waiting> withPasses(std::vector<Waiting> changed) {
  linkWaiters(changed);
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
  return changed;
}

bool saveOne(ApplicationModule& app, RegisteredObject& object, int counter) {
  if (app.gMainForm) {
    app.gMainForm->setStrStatusBarText(app.LoadResString(Message::SavingObject) + " " +
                                       std::to_string(counter) + " (" + object.strTitle() + ")");
    app.gMainForm->workSteps();
  }
  return object.bSave();
}

}  // namespace

bool bSaveInDependencyOrder(ApplicationModule& app, ObjectRegistry& objects,
                            const RegisteredObject& document) {
  const std::vector<Waiting> changed =
      paintedWait(app.gMainForm, [&] { return withPasses(changedObjects(objects, document)); });
  std::vector<std::size_t> left(changed.size());  // places, from the last to the first
  std::iota(left.rbegin(), left.rend(), std::size_t{0});
  for (int pass = 1; !left.empty(); ++pass) {
    std::vector<std::size_t> later;
    int counter = 1;
    for (const std::size_t place : left) {
      ++counter;  // also for those that wait on: a walk meets them too
      if (changed[place].pass != pass) {
        later.push_back(place);
      } else if (!saveOne(app, *changed[place].object, counter)) {
        return false;
      }
    }
    if (later.size() == left.size()) return false;  // the rest waits in a ring
    left = std::move(later);
  }
  return true;
}

}  // namespace velra
