// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/files/Files.h"
#include "store/IOManager.h"
#include "support/DocumentSession.h"

namespace velra {
namespace {

class FilesBehindTest : public testing::Test {
 protected:
  std::string promised(int number) {
    const std::string path = session_.folder / ("new" + std::to_string(number));
    io_->names().promise(path);
    return path;
  }

  test::DocumentSession session_;
  const std::shared_ptr<IOManager> io_ = std::make_shared<IOManager>(session_.app);
};

TEST_F(FilesBehindTest, AfterAFailureTheOthersAreStillPromisedAndAForeignFileStays) {
  const std::string picture = session_.folder.write("picture", "bytes");
  constexpr std::size_t kForeign = 100;
  const std::string foreign = session_.folder.write("new100", "foreign");
  std::vector<std::string> names;
  for (int i = 0; i < 300; ++i) names.push_back(promised(i));
  io_->makeFilesBehind({});
  for (const std::string& name : names) io_->CopyObject(picture, name);
  const auto [made, failed] = io_->filesMade();
  io_->noteFilesMade();
  ASSERT_EQ(made.size(), names.size());
  EXPECT_NE(failed.reason.find(foreign), std::string::npos) << failed.reason;
  EXPECT_FALSE(made[kForeign] || made.back());
  for (std::size_t i = 0; i < names.size(); ++i) {
    EXPECT_TRUE(made[i] || i >= kForeign) << i;
    EXPECT_NE(io_->names().isPromised(names[i]), made[i]) << i;
    EXPECT_TRUE(i == kForeign || bFileExists(names[i]) == made[i]) << i;
  }
  EXPECT_EQ(session_.folder.read("new100"), "foreign");
}

TEST_F(FilesBehindTest, APathThatIsMovedFromCanBeTheNextOnesToComeTo) {
  const std::string picture = session_.folder.write("picture", "copied");
  std::string from = session_.folder.write("new0", "moved");
  io_->makeFilesBehind({});
  for (int i = 1; i <= 50; ++i) {
    const std::string to = promised(i);
    io_->MoveObject(from, to);
    io_->names().promise(from);
    io_->CopyObject(picture, from);
    from = to;
  }
  EXPECT_EQ(io_->filesMade().failure.reason, "");
  EXPECT_EQ(session_.folder.read("new49") + session_.folder.read("new50"), "copiedmoved");
}

TEST_F(FilesBehindTest, AHiddenFolderTakesThePlaceOfTheNewOneOrIsBroughtOverFileByFile) {
  const std::string data = session_.folder / "new_files/";
  const std::string picture = session_.folder.write("picture", "copied");
  const std::string moved = session_.folder.write("moved", "moved");
  const std::string toMove = data + "moved";
  for (const std::string foreign : {"", "other", "copied", "moved"}) {
    SCOPED_TRACE(foreign);
    std::filesystem::create_directory(data);
    const auto before = session_.folder.snapshot();
    const std::string hidden = HiddenFolder::pathBeside(data);
    for (const std::string& path : {data + "copied", toMove}) io_->names().promise(path);
    io_->makeFilesBehind({data, hidden});
    io_->CopyObject(picture, data + "copied");
    io_->MoveObject(moved, toMove);
    EXPECT_EQ(session_.folder.read("new_files/moved"), "") << "seen before all are there";
    if (!foreign.empty()) session_.folder.write("new_files/" + foreign, "foreign");
    const auto [made, failed] = io_->filesMade();
    io_->noteFilesMade();

    EXPECT_FALSE(bFolderExists(hidden));
    const bool inTheWay = foreign == "copied" || foreign == "moved";
    EXPECT_EQ(made, (std::vector<bool>{foreign != "copied", foreign != "moved"}));
    EXPECT_EQ(failed.reason.find(data + foreign) != std::string::npos, inTheWay);
    auto expected = before;
    expected["new_files/copied"] = "copied";
    expected["new_files/moved"] = "moved";
    if (foreign != "moved") expected.erase("moved");
    if (!foreign.empty()) expected["new_files/" + foreign] = "foreign";
    EXPECT_EQ(session_.folder.snapshot(), expected);
    if (foreign != "moved") std::filesystem::rename(toMove, moved);
    std::filesystem::remove_all(data);
  }
}

}  // namespace
}  // namespace velra
