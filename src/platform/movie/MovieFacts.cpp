// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/MovieFacts.h"

#include "platform/movie/MovieLibrary.h"

namespace velra {

MovieFacts movieFacts(const std::string& path) {
  return movieLibrary().facts(path);
}

}  // namespace velra
