// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>

#include "support/TemporaryFolder.h"

namespace velra::test {

/// A copy of the sample, in a folder of its own.
class SampleFolder : public TemporaryFolder {
 public:
  SampleFolder() {
    std::filesystem::create_directories(*this / "sample");
    for (const auto& entry : std::filesystem::directory_iterator(VELRA_SOURCE_DIR "/data/sample")) {
      const std::string name = entry.path().filename();
      if (!name.starts_with("lighthouse")) continue;
      std::filesystem::copy(entry.path(), *this / ("sample/" + name),
                            std::filesystem::copy_options::recursive);
    }
  }
};

}  // namespace velra::test
