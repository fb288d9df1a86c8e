// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/ParsedAhead.h"

#include <utility>

#include "store/ReadersAhead.h"

namespace velra {

namespace {

// Fewer are read by the one that takes them before a thread would have begun.
constexpr std::size_t kFewFiles = 8;

}  // namespace

ParsedAhead::ParsedAhead(std::vector<Wanted> files, Calls calls)
    : calls_(std::move(calls)),
      readers_(std::make_shared<ReadersAhead>(std::move(files), calls_.pictureOf)) {
  if (readers_->count() >= kFewFiles) readers_->start();
}

ParsedAhead::~ParsedAhead() {
  readers_->end();
}

const ParsedAhead::File& ParsedAhead::take() {
  readers_->takeInto(current_, calls_.waits);
  if (current_.raised) std::rethrow_exception(current_.raised);
  return current_;
}

}  // namespace velra
