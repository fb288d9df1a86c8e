// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra::bench {

/// While it lives, each file that this process brings to the disk takes the whole file system
/// along, as every save did before there was a store of unsaved work. There is one at a time.
class WholeSync {
 public:
  WholeSync();
  ~WholeSync();
  WholeSync(const WholeSync&) = delete;
  WholeSync& operator=(const WholeSync&) = delete;
};

}  // namespace velra::bench
