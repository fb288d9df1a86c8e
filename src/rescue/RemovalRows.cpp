// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/RemovalRows.h"

#include <array>
#include <cstring>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "platform/database/Database.h"
#include "rescue/PathRow.h"

namespace velra {

namespace {

// The size, the time and the inode of a file; a size below 0 tells that there is none.
using StampNumbers = std::array<std::int64_t, 3>;

void appendStamp(std::string& bytes, const FileStamp& stamp) {
  const StampNumbers numbers{stamp.exists ? static_cast<std::int64_t>(stamp.size) : -1,
                             stamp.modified, static_cast<std::int64_t>(stamp.inode)};
  std::array<char, sizeof(numbers)> raw{};
  std::memcpy(raw.data(), numbers.data(), raw.size());
  bytes.append(raw.data(), raw.size());
}

FileStamp stampAt(const std::string& bytes, std::size_t place) {
  StampNumbers numbers{-1, 0, 0};
  if ((place + 1) * sizeof(numbers) <= bytes.size()) {
    std::memcpy(numbers.data(), bytes.data() + place * sizeof(numbers), sizeof(numbers));
  }
  FileStamp stamp;
  stamp.exists = numbers[0] >= 0;
  stamp.size = stamp.exists ? static_cast<std::uint64_t>(numbers[0]) : 0;
  stamp.modified = numbers[1];
  stamp.inode = static_cast<std::uint64_t>(numbers[2]);
  return stamp;
}

std::vector<PlannedRemoval> eachOnce(std::vector<PlannedRemoval> all,
                                     const std::unordered_set<std::string>& without) {
  std::vector<PlannedRemoval> once;
  std::unordered_map<std::string, std::size_t> places;
  for (PlannedRemoval& removal : all) {
    if (without.contains(removal.path)) continue;
    const auto [place, isNew] = places.try_emplace(removal.path, once.size());
    if (isNew) {
      once.push_back(std::move(removal));
    } else {
      once[place->second] = std::move(removal);
    }
  }
  return once;
}

}  // namespace

struct RemovalRows::Found {
  std::vector<PlannedRemoval> due;
  std::vector<PlannedRemoval> goes;
  std::unordered_set<std::string> stays;
};

RemovalRows::Found RemovalRows::found(SessionId session) {
  Found all;
  Statement rows = database_.prepare(
      "SELECT planned, folder, paths, stamps FROM removal WHERE session = ?1 ORDER BY rowid");
  rows.number(1, session);
  while (rows.next()) {
    const auto kind = static_cast<Kind>(rows.number(0));
    const std::string stamps = rows.text(3);
    std::size_t place = 0;
    for (std::string& path : PathRow{rows.text(1), rows.text(2)}.list()) {
      if (kind == Kind::Stays) {
        all.stays.insert(std::move(path));
      } else {
        auto& list = kind == Kind::Due ? all.due : all.goes;
        list.push_back({std::move(path), stampAt(stamps, place++)});
      }
    }
  }
  return all;
}

void RemovalRows::insert(SessionId session, Kind kind,
                         const std::vector<PlannedRemoval>& removals) {
  if (removals.empty()) return;
  PathRow row;
  std::string stamps;
  for (const PlannedRemoval& removal : removals) {
    row.add(removal.path);
    appendStamp(stamps, removal.stamp);
  }
  database_
      .prepare(
          "INSERT INTO removal(session, planned, folder, paths, stamps)"
          " VALUES(?1, ?2, ?3, ?4, ?5)")
      .number(1, session)
      .number(2, static_cast<std::int64_t>(kind))
      .text(3, row.folder)
      .bytes(4, row.paths)
      .bytes(5, stamps)
      .run();
}

void RemovalRows::remove(SessionId session, Kind first, Kind last) {
  database_.prepare("DELETE FROM removal WHERE session = ?1 AND planned BETWEEN ?2 AND ?3")
      .number(1, session)
      .number(2, static_cast<std::int64_t>(first))
      .number(3, static_cast<std::int64_t>(last))
      .run();
}

void RemovalRows::plan(SessionId session, const SavePlan& save) {
  std::vector<PlannedRemoval> stays;
  for (const std::string& path : save.stays) stays.push_back({path, {}});
  insert(session, Kind::Stays, save.addsRemovals ? stays : due(session));
  insert(session, Kind::Goes, save.removals);
}

// That something stays is so seldom that all is then written anew.
void RemovalRows::finish(SessionId session) {
  Statement stays =
      database_.prepare("SELECT 1 FROM removal WHERE session = ?1 AND planned = ?2 LIMIT 1");
  if (stays.number(1, session).number(2, static_cast<std::int64_t>(Kind::Stays)).next()) {
    const std::vector<PlannedRemoval> then = dueThen(session);
    remove(session, Kind::Due, Kind::Stays);
    insert(session, Kind::Due, then);
  } else {
    database_.prepare("UPDATE removal SET planned = ?2 WHERE session = ?1 AND planned <> ?2")
        .number(1, session)
        .number(2, static_cast<std::int64_t>(Kind::Due))
        .run();
  }
}

void RemovalRows::drop(SessionId session) {
  remove(session, Kind::Goes, Kind::Stays);
}

std::vector<PlannedRemoval> RemovalRows::due(SessionId session) {
  return eachOnce(found(session).due, {});
}

std::vector<PlannedRemoval> RemovalRows::dueThen(SessionId session) {
  Found all = found(session);
  std::vector<PlannedRemoval> then = eachOnce(std::move(all.due), all.stays);
  then.insert(then.end(), std::make_move_iterator(all.goes.begin()),
              std::make_move_iterator(all.goes.end()));
  return eachOnce(std::move(then), {});
}

void RemovalRows::done(SessionId session) {
  remove(session, Kind::Due, Kind::Due);
}

}  // namespace velra
