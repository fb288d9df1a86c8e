// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/KeptWorkList.h"

#include <algorithm>
#include <array>
#include <ctime>

#include "rescue/ProcessIdentity.h"
#include "rescue/RescueStore.h"

namespace velra {

namespace {

std::vector<KeptWork> works(Database& database, const std::string& condition,
                            const std::string& document) {
  std::vector<KeptWork> found;
  Statement rows = database.prepare(
      "SELECT id, document, process, changed, ended FROM session"
      " WHERE (?1 = '' OR document = ?1) AND (" +
      condition + ") ORDER BY changed DESC, id DESC");
  rows.text(1, document);
  while (rows.next()) {
    found.push_back({rows.number(0),
                     rows.text(1),
                     rows.text(2),
                     rows.number(3),
                     static_cast<SessionEnd>(rows.number(4)),
                     {}});
  }
  Statement titles = database.prepare("SELECT title FROM object WHERE session = ?1 ORDER BY rowid");
  for (KeptWork& work : found) {
    titles.number(1, work.session);
    while (titles.next()) work.titles.push_back(titles.text(0));
  }
  return found;
}

}  // namespace

std::vector<KeptWork> keptWork(RescueStore& store, const std::string& document) {
  return works(store.database(), "EXISTS(SELECT 1 FROM object WHERE session = id)", document);
}

std::vector<KeptWork> interruptedSaves(RescueStore& store, const std::string& document) {
  return works(store.database(),
               "EXISTS(SELECT 1 FROM planned WHERE session = id) OR "
               "EXISTS(SELECT 1 FROM removal WHERE session = id)",
               document);
}

std::string strWhen(std::int64_t secondsSince1970) {
  const std::time_t time = secondsSince1970;
  std::tm local{};
  std::array<char, 32> text{};
  if (!localtime_r(&time, &local)) return {};
  return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", &local)};
}

std::string strTellOfOthers(RescueStore& store, const std::string& document) {
  const auto sessions = works(store.database(), "1", document);
  if (std::any_of(sessions.begin(), sessions.end(), [](const KeptWork& work) {
        return work.end == SessionEnd::Running && mayBeRunning(work.process);
      })) {
    return "This document is open in another window of the program.";
  }
  const auto kept = keptWork(store, document);
  return kept.empty() ? std::string()
                      : "Unsaved work of " + strWhen(kept.front().changed) +
                            " is kept; velra-recover brings it back.";
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
  for (const SessionId session : gone) store.drop(session);
}

}  // namespace velra
