// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/PictureTable.h"

#include <chrono>
#include <cmath>
#include <cstdint>

#include "movies/LibAv.h"
#include "movies/MovieInput.h"
#include "movies/PictureIndex.h"
#include "movies/PictureReader.h"

namespace velra {

namespace {

// A table of keys reaches to the end when no more than this lies behind its last one: it is read.
constexpr std::int64_t kMostTail = 100'000'000;

struct TableEnds {
  std::int64_t pictures = 0;  // in the table
  std::int64_t firstPosition = 0;
  std::int64_t lastPosition = 0;
  std::int64_t lastTicks = 0;
  bool rises = true;    // without a leap
  bool inOrder = true;  // of the file
};

TableEnds readTable(AVStream* stream, double leap) {
  TableEnds table;
  table.pictures = avformat_index_get_entries_count(stream);
  for (int i = 0; i < table.pictures; ++i) {
    const AVIndexEntry& entry = *avformat_index_get_entry(stream, i);
    if (i == 0) {
      table.firstPosition = entry.pos;
    } else {
      const double distance = static_cast<double>(entry.timestamp - table.lastTicks);
      table.rises = table.rises && distance >= 0 && distance <= leap;
      table.inOrder = table.inOrder && entry.pos >= table.lastPosition;
    }
    table.lastPosition = entry.pos;
    table.lastTicks = entry.timestamp;
  }
  return table;
}

}  // namespace

bool tableShowsNoLeap(PictureReader& reader, double frameTime, double leap) {
  MovieInput& input = reader.input();
  // Some tables are read when they are needed first.
  if (!input.seek(std::llround(reader.firstStamp() / reader.tick()))) return false;
  const TableEnds table = readTable(input.stream(), leap / reader.tick());
  if (table.pictures == 0 || !table.rises) return false;
  const std::int64_t all = input.stream()->nb_frames;
  if (all > 0 && table.pictures >= all) return true;
  // A table is kept in the order of the stamps: where these fall, the places do.
  if (!table.inOrder || table.firstPosition > reader.firstPosition()) return false;
  if (input.bytes() - table.lastPosition > kMostTail || !input.seek(table.lastTicks)) return false;
  PictureIndex tail;
  PictureIndexer(input, frameTime, leap, tail).read(MovieInput::kReadLimit);
  return tail.complete && !tail.line.leaps();
}

}  // namespace velra
