// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "shell/Program.h"

namespace velra::test {
namespace {

/// Notes how far each work came.
struct WatchingFace : CurrentFace {
  std::vector<std::string> works;
  std::size_t last = 0;
  void showProgress(std::size_t done, std::size_t total) override {
    if (total == 0) works.push_back(std::to_string(last) + "%");
    last = total == 0 ? 0 : 100 * done / total;
  }
};

TEST(Progress, OfAnOpeningASearchAndASaveAsComesToItsEnd) {
  Program program;
  WatchingFace face;
  program.mainForm.setFace(&face);
  program.mainForm.OpenFile(program.sample());
  program.mainForm.mnuFileFind();
  program.ui.filesToSave = {program.folder / "copy.xml"};
  program.mainForm.mnuFileSaveAs();
  program.mainForm.setFace(nullptr);
  EXPECT_EQ(face.works, std::vector<std::string>(10, "100%"));
}

}  // namespace
}  // namespace velra::test
