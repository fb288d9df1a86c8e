// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/DocumentRescue.h"

#include <utility>

#include "platform/files/Files.h"
#include "rescue/ProcessIdentity.h"
#include "rescue/RescueStore.h"
#include "rescue/RescueWriter.h"

namespace velra {

SessionId DocumentRescue::Session::begun(RescueStore& store) {
  if (id == 0) id = store.begin(document, processIdentity());
  if (owed) (store.plans().*owed)(id);
  owed = nullptr;
  return id;
}

void DocumentRescue::Session::keepWaiting(RescueStore& store) {
  if (waiting.empty()) return;
  std::vector<KeptObject> objects;
  std::vector<std::string> paths;
  for (const auto& [path, object] : waiting) {
    if (object) {
      objects.push_back(*object);
    } else {
      paths.push_back(path);
    }
  }
  store.keep(begun(store), objects, paths);
  waiting.clear();
}

DocumentRescue::DocumentRescue(RescueWriter& writer, std::string document)
    : writer_(writer), session_(std::make_shared<Session>()) {
  session_->document = std::move(document);
  post([](RescueStore& store, Session& session) { session.begun(store); });
}

DocumentRescue::~DocumentRescue() {
  post([](RescueStore& store, Session& session) {
    session.keepWaiting(store);
    store.end(session.begun(store), SessionEnd::Left);
  });
}

std::function<void(RescueStore&)> DocumentRescue::inSession(Task task) const {
  return
      [session = session_, task = std::move(task)](RescueStore& store) { task(store, *session); };
}

void DocumentRescue::post(Task task) {
  writer_.post(inSession(std::move(task)));
}

std::string DocumentRescue::plan(const SavePlan& save) {
  return writer_.run(inSession([&save](RescueStore& store, Session& session) {
    store.plans().planSave(session.begun(store), save);
  }));
}

std::string DocumentRescue::plan(const CopyPlan& copy) {
  return writer_.run(inSession([&copy](RescueStore& store, Session& session) {
    store.plans().planCopy(session.begun(store), copy);
  }));
}

void DocumentRescue::endSave(void (SavePlans::*end)(SessionId)) {
  post([end](RescueStore& store, Session& session) {
    if (end != &SavePlans::abandon) session.waiting.clear();
    session.owed = end;
    session.begun(store);
  });
}

void DocumentRescue::finishSave() {
  endSave(&SavePlans::finishSave);
}

void DocumentRescue::finishCopy() {
  endSave(&SavePlans::finishCopy);
}

void DocumentRescue::abandonSave() {
  endSave(&SavePlans::abandon);
}

void DocumentRescue::keep(std::vector<KeptObject> objects, std::vector<std::string> paths) {
  post([objects = std::move(objects), paths = std::move(paths)](RescueStore& store,
                                                                Session& session) {
    for (const std::string& path : paths) session.waiting[path] = std::nullopt;
    for (const KeptObject& object : objects) session.waiting[object.path] = object;
    session.keepWaiting(store);
  });
}

void DocumentRescue::keepAgain() {
  if (writer_.failure().empty()) return;
  post([](RescueStore& store, Session& session) { session.keepWaiting(store); });
}

void DocumentRescue::keepPicture(const std::string& path) {
  FileBytes file = readFile(path);
  if (file.reason.empty()) keep({{path, "MediaObject", "", std::move(file.bytes), false, {}}}, {});
}

std::string DocumentRescue::keepReplaced(const std::string& path, const std::string& bytes) {
  return writer_.run(inSession([&](RescueStore& store, Session& session) {
    store.keepReplaced(session.begun(store), path, bytes);
  }));
}

void DocumentRescue::endedByError() {
  post([](RescueStore& store, Session& session) {
    session.keepWaiting(store);
    store.end(session.begun(store), SessionEnd::Error);
  });
}

void DocumentRescue::removalsDone() {
  post([](RescueStore& store, Session& session) {
    store.plans().removalsDone(session.begun(store));
  });
}

}  // namespace velra
