// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "base/Collection.h"

namespace velra {

/// Two bounds in seconds from the start of the movie.
struct Range {
  double dBegin = 0;
  double dend = 0;
};

/// The ranges of a timeline, in the order of adding.
class RangeSet : public Collection<std::shared_ptr<Range>> {
 public:
  using Collection<std::shared_ptr<Range>>::Add;

  std::shared_ptr<Range> Add(double dend, double dBegin, const std::string& key) {
    auto range = std::make_shared<Range>(Range{dBegin, dend});
    Add(range, key);
    return range;
  }
};

}  // namespace velra
