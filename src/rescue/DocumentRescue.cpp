// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/DocumentRescue.h"

#include <utility>

#include "rescue/ProcessIdentity.h"
#include "rescue/RescueStore.h"
#include "rescue/RescueWriter.h"

namespace velra {

DocumentRescue::DocumentRescue(RescueWriter& writer, std::string document)
    : writer_(writer), session_(std::make_shared<SessionId>(0)) {
  writer_.post([session = session_, document = std::move(document)](RescueStore& store) {
    *session = store.begin(document, processIdentity());
  });
}

DocumentRescue::~DocumentRescue() {
  writer_.post([session = session_](RescueStore& store) { store.end(*session, SessionEnd::Left); });
}

std::string DocumentRescue::planSave(SavePlan plan) {
  return writer_.run([this, &plan](RescueStore& store) { store.planSave(*session_, plan); });
}

void DocumentRescue::finishSave() {
  writer_.post([session = session_](RescueStore& store) { store.finishSave(*session); });
}

void DocumentRescue::abandonSave() {
  writer_.post([session = session_](RescueStore& store) { store.abandonSave(*session); });
}

void DocumentRescue::savedElsewhere() {
  writer_.post([session = session_](RescueStore& store) { store.forgetAll(*session); });
}

void DocumentRescue::keep(std::vector<KeptObject> objects, std::vector<std::string> paths) {
  writer_.post([session = session_, objects = std::move(objects), paths = std::move(paths)](
                   RescueStore& store) { store.keep(*session, objects, paths); });
}

void DocumentRescue::endedByError() {
  writer_.post(
      [session = session_](RescueStore& store) { store.end(*session, SessionEnd::Error); });
}

void DocumentRescue::removalsDone() {
  writer_.post([session = session_](RescueStore& store) { store.removalsDone(*session); });
}

}  // namespace velra
