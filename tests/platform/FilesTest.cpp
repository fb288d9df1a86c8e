// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files/Files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "platform/files/FileMoves.h"
#include "support/ErrorOf.h"
#include "support/TemporaryFolder.h"

namespace velra {
namespace {

using test::errorOf;
using test::TemporaryFolder;

TEST(Files, ListsByBytesPlainFilesThatFit) {
  const TemporaryFolder folder;
  for (const char* name : {"b.xml", "a.xml", "B.xml", "\xC3\xA9.xml", "\xE9.xml", "a.xmlx", "a.XML",
                           ".xml", "sub/c.xml", "folder.xml/d.txt"}) {
    folder.write(name, "x");
  }
  ASSERT_EQ(::symlink("a.xml", (folder / "link.xml").c_str()), 0);
  ASSERT_EQ(::symlink("nowhere", (folder / "dangling.xml").c_str()), 0);
  ASSERT_EQ(::mkfifo((folder / "pipe.xml").c_str(), 0600), 0);
  using Names = std::vector<std::string>;
  EXPECT_EQ(colListFiles(folder / "*.xml"), (Names{".xml", "B.xml", "a.XML", "a.xml", "b.xml",
                                                   "link.xml", "\xC3\xA9.xml", "\xE9.xml"}));
  EXPECT_EQ(colListFiles(folder / "a.*"), (Names{"a.XML", "a.xml", "a.xmlx"}));
  EXPECT_EQ(colListFiles(folder / "?.xml"),
            (Names{"B.xml", "a.XML", "a.xml", "b.xml", "\xE9.xml"}));
  EXPECT_EQ(colListFiles(folder / "a*m*x"), Names{"a.xmlx"});
  EXPECT_EQ(colListFiles(folder / "missing/*"), Names{});
  changeCurrentFolder(folder.path());
  EXPECT_EQ(colListFiles("b*"), (Names{"B.xml", "b.xml"}));
}

TEST(Files, TellsKindsApart) {
  const TemporaryFolder folder;
  const std::string file = folder.write("file", "12345");
  EXPECT_TRUE(bFileExists(file));
  EXPECT_FALSE(bFolderExists(file));
  EXPECT_FALSE(bFileExists(folder.path()));
  EXPECT_TRUE(bFolderExists(folder.path()));
  EXPECT_FALSE(bFileExists(folder / "missing") || bFolderExists(folder / "missing"));
  EXPECT_FALSE(bFileExists(""));
  const FileStamp stamp = fileStamp(file);
  EXPECT_EQ(stamp.size, 5U);
  EXPECT_TRUE(stamp.exists);
  EXPECT_EQ(stamp, fileStamp(file));
  folder.write("file", "123456");
  EXPECT_NE(stamp, fileStamp(file));
  EXPECT_EQ(fileStamp(folder / "missing"), FileStamp{});
}

TEST(Files, ReadsRegularFilesAlone) {
  const TemporaryFolder folder;
  const std::string bytes("a\0b\xFF", 4);
  EXPECT_EQ(readFile(folder.write("good", bytes)).bytes, bytes);
  EXPECT_EQ(readFile(folder / "good", 4).reason, "");
  EXPECT_NE(readFile(folder / "good", 3).reason, "");
  EXPECT_EQ(readStart(folder / "good", 3).bytes, bytes.substr(0, 3));
  EXPECT_EQ(readStart(folder / "good", 5).bytes, bytes);
  EXPECT_NE(readFile(folder.write("empty", "")).reason, "");
  EXPECT_NE(readFile(folder.path()).reason, "");
  EXPECT_NE(readFile(folder / "missing").reason, "");
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_NE(readFile(folder / "pipe").reason, "");
  EXPECT_NE(readFile("/dev/zero").reason, "");
}

TEST(Files, MovesWithoutReplacingAndCopiesWith) {
  const TemporaryFolder folder;
  const std::string one = folder.write("one", "1");
  const std::string two = folder.write("two", "22");
  EXPECT_EQ(errorOf([&] { MoveFileTo(one, two); }), kFileAlreadyExists);
  EXPECT_EQ(errorOf([&] { MoveFileTo(folder / "missing", folder / "new"); }), kFileNotFound);
  EXPECT_EQ(errorOf([&] { MoveFileTo(one, folder / "missing/new"); }), kPathNotFound);
  EXPECT_EQ(errorOf([&] { MoveFileTo(one, folder.path()); }), kFileAlreadyExists);
  EXPECT_EQ(errorOf([&] { CopyFileTo(folder / "missing", two); }), kFileNotFound);
  EXPECT_EQ(errorOf([&] { CopyFileTo(one, folder / "missing/new"); }), kPathNotFound);
  EXPECT_EQ(errorOf([&] { CopyFileTo(one, folder.path()); }), kPermissionDenied);
  EXPECT_EQ(errorOf([&] { CopyFileTo(one, folder / "./one"); }), kPermissionDenied);
  EXPECT_EQ(folder.snapshot(), (std::map<std::string, std::string>{{"one", "1"}, {"two", "22"}}));
  const std::string holes = folder.write("holes", "x");
  std::filesystem::resize_file(holes, 30'000'000'000);
  EXPECT_EQ(errorOf([&] { CopyFileTo(holes, two); }), kDiskFull);
  std::filesystem::remove(holes);
  CopyFileTo(one, two);
  EXPECT_EQ(folder.read("two"), "1");
  MoveFileTo(two, folder / "three");
  EXPECT_EQ(folder.snapshot(), (std::map<std::string, std::string>{{"one", "1"}, {"three", "1"}}));
}

TEST(Files, ReplacesAtOnce) {
  const TemporaryFolder folder;
  const std::string file = folder.write("settings", "old");
  ASSERT_EQ(::chmod(file.c_str(), 0640), 0);
  ASSERT_EQ(::symlink("settings", (folder / "link").c_str()), 0);
  EXPECT_EQ(replaceFile(folder / "link", "new"), "");
  struct stat status {};
  ASSERT_EQ(::lstat((folder / "link").c_str(), &status), 0);
  EXPECT_TRUE(S_ISLNK(status.st_mode));
  ASSERT_EQ(::stat(file.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0640U);
  EXPECT_NE(replaceFile(folder / "missing/settings", "new"), "");
  EXPECT_EQ(folder.read("settings"), "new");
  EXPECT_EQ(colListFiles(folder / "*"), (std::vector<std::string>{"link", "settings"}));
}

TEST(Files, MakesDeletesAndSyncs) {
  const TemporaryFolder folder;
  EXPECT_EQ(makeFolder(folder / "new"), "");
  EXPECT_NE(makeFolder(folder / "new"), "");
  EXPECT_NE(deleteFile(folder / "new"), "") << "a folder is no file";
  const std::string file = folder.write("new/file", "x");
  EXPECT_EQ(syncFile(file), "");
  EXPECT_EQ(syncFolder(folder / "new"), "");
  EXPECT_NE(syncFolder(file), "");
  EXPECT_EQ(deleteFile(file), "");
  EXPECT_NE(deleteFile(file), "");
  EXPECT_EQ(strTempPath().back(), '/');
}

}  // namespace
}  // namespace velra
