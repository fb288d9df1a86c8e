// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/KeptWorkList.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <utility>

#include "base/Paths.h"
#include "rescue/ProcessIdentity.h"
#include "rescue/RescueStore.h"
#include "rescue/RescueTables.h"

namespace velra {

namespace {

constexpr const char* kHasObjects = "EXISTS(SELECT 1 FROM object WHERE session = id)";
constexpr const char* kObjectTitles = "SELECT title FROM object WHERE session = ?1 ORDER BY rowid";
constexpr const char* kHasReplaced = "EXISTS(SELECT 1 FROM replaced WHERE session = id)";

// Without titles.
std::vector<KeptWork> sessions(Database& database, const std::string& condition,
                               const std::string& document) {
  std::vector<KeptWork> found;
  Statement rows = database.prepare(
      "SELECT id, document, process, changed, ended FROM session"
      " WHERE (?1 = '' OR document = ?1) AND (" +
      condition + ") ORDER BY changed DESC, id DESC");
  rows.text(1, document);
  while (rows.next()) {
    KeptWork work;
    work.session = rows.number(0);
    work.document = rows.text(1);
    work.process = rows.text(2);
    work.changed = rows.number(3);
    work.end = static_cast<SessionEnd>(rows.number(4));
    found.push_back(std::move(work));
  }
  return found;
}

// With what `titles` selects for each.
std::vector<KeptWork> works(Database& database, const std::string& condition,
                            const std::string& document, const char* titles) {
  std::vector<KeptWork> found = sessions(database, condition, document);
  Statement rows = database.prepare(titles);
  for (KeptWork& work : found) {
    rows.number(1, work.session);
    while (rows.next()) work.titles.push_back(rows.text(0));
  }
  return found;
}

bool isOpenHere(const KeptWork& work) {
  return work.end == SessionEnd::Running && work.process == processIdentity();
}

std::vector<KeptWork> replacedWork(Database& database) {
  std::vector<KeptWork> found =
      works(database, kHasReplaced, "", "SELECT path FROM replaced WHERE session = ?1");
  for (KeptWork& work : found) {
    work.replaced = true;
    for (std::string& path : work.titles) path = strFileName(path);
  }
  return found;
}

void dropFrom(Database& database, const char* rows, SessionId session) {
  database.prepare("DELETE FROM " + std::string(rows) + " WHERE session = ?1")
      .number(1, session)
      .run();
}

}  // namespace

std::vector<KeptWork> keptWork(RescueStore& store, const std::string& document) {
  return works(store.database(), kHasObjects, document, kObjectTitles);
}

std::vector<KeptWork> restorableWork(RescueStore& store, const std::string& first) {
  std::vector<KeptWork> found = keptWork(store, "");
  std::erase_if(found, isOpenHere);
  for (KeptWork& work : replacedWork(store.database())) found.push_back(std::move(work));
  std::stable_sort(found.begin(), found.end(), [&](const KeptWork& a, const KeptWork& b) {
    const bool aFirst = a.document == first;
    const bool bFirst = b.document == first;
    return aFirst != bFirst ? aFirst : a.changed > b.changed;
  });
  return found;
}

bool hasRestorableWork(RescueStore& store) {
  if (!sessions(store.database(), kHasReplaced, "").empty()) return true;
  const auto kept = sessions(store.database(), kHasObjects, "");
  return !std::all_of(kept.begin(), kept.end(), isOpenHere);
}

Fate fateOf(const KeptWork& work) {
  if (work.replaced) return Fate::Replaced;
  if (work.end == SessionEnd::Left) return Fate::Left;
  if (work.end == SessionEnd::Error) return Fate::Error;
  return mayBeRunning(work.process) ? Fate::StillOpen : Fate::CutOff;
}

std::vector<KeptWork> interruptedSaves(RescueStore& store, const std::string& document) {
  return sessions(store.database(),
                  "EXISTS(SELECT 1 FROM planned WHERE session = id) OR "
                  "EXISTS(SELECT 1 FROM removal WHERE session = id)",
                  document);
}

bool isRunning(const KeptWork& work) {
  return work.end == SessionEnd::Running && mayBeRunning(work.process);
}

bool isOpen(RescueStore& store, const std::string& document) {
  const std::vector<KeptWork> all = sessions(store.database(), "1", document);
  return std::any_of(all.begin(), all.end(), isRunning);
}

std::string strWhen(std::int64_t secondsSince1970) {
  const std::time_t time = secondsSince1970;
  std::tm local{};
  std::array<char, 32> text{};
  if (!localtime_r(&time, &local)) return {};
  return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", &local)};
}

OthersAtWork othersAtWork(RescueStore& store, const std::string& document) {
  OthersAtWork others;
  others.open = isOpen(store, document);
  const auto kept = sessions(store.database(), kHasObjects, document);
  if (!kept.empty()) others.kept = kept.front().changed;
  return others;
}

std::vector<KeptObject> keptObjects(RescueStore& store, SessionId session) {
  std::vector<KeptObject> found;
  Statement rows = store.database().prepare(
      "SELECT path, class, title, bytes, removed, size, modified, inode FROM object"
      " WHERE session = ?1 ORDER BY rowid");
  rows.number(1, session);
  while (rows.next()) {
    found.push_back({rows.text(0), rows.text(1), rows.text(2), rows.text(3), rows.number(4) != 0,
                     stampFrom(rows, 5)});
  }
  return found;
}

std::vector<KeptObject> keptObjects(RescueStore& store, const KeptWork& work) {
  if (!work.replaced) return keptObjects(store, work.session);
  std::vector<KeptObject> found;
  for (PlannedFile& file : store.replaced(work.session)) {
    KeptObject object;
    object.path = std::move(file.path);
    object.bytes = std::move(file.bytes);
    found.push_back(std::move(object));
  }
  return found;
}

void dropKeptWork(RescueStore& store, const KeptWork& work) {
  Transaction transaction(store.database());
  dropFrom(store.database(), work.replaced ? "replaced" : "object", work.session);
  if (!isRunning(work)) store.deleteIfEmpty(work.session);
  transaction.commit();
}

void pruneKeptWork(RescueStore& store, std::int64_t oldest, std::int64_t bytes) {
  Statement sizes = store.database().prepare(
      "SELECT id, process, changed,"
      " (SELECT coalesce(sum(length(bytes)), 0) FROM object WHERE session = id) +"
      " (SELECT coalesce(sum(length(bytes)), 0) FROM replaced WHERE session = id) +"
      " (SELECT coalesce(sum(length(bytes)), 0) FROM planned WHERE session = id)"
      " FROM session ORDER BY changed DESC, id DESC");
  std::int64_t kept = 0;
  std::vector<SessionId> gone;
  while (sizes.next()) {
    if (mayBeRunning(sizes.text(1))) continue;
    kept += sizes.number(3);
    if (sizes.number(2) < oldest || kept > bytes) gone.push_back(sizes.number(0));
  }
  Transaction transaction(store.database());
  for (const SessionId session : gone) {
    // A save that was cut off is finished however late its document is opened.
    dropFrom(store.database(), "object", session);
    dropFrom(store.database(), "replaced", session);
    store.deleteIfEmpty(session);
  }
  transaction.commit();
}

}  // namespace velra
