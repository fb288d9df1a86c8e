// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "platform/files/Files.h"
#include "support/TemporaryFolder.h"

namespace {

/// What the disk of the next writes is like. The system's calls below stand before the real ones.
struct Disk {
  bool reserves = true;  // false: the file system knows no reservation
  int reserveError = 0;  // what a reservation answers
  long room = -1;        // bytes that can still be written; -1 for any number
  int writeError = ENOSPC;
} disk;

}  // namespace

extern "C" int fallocate(int file, int mode, off_t offset, off_t size) {
  errno = disk.reserves ? disk.reserveError : EOPNOTSUPP;
  if (errno != 0) return -1;
  return static_cast<int>(::syscall(SYS_fallocate, file, mode, offset, size));
}

extern "C" ssize_t pwrite(int file, const void* bytes, size_t size, off_t offset) {
  if (disk.room >= 0) {
    // The bytes that are put back need no room of their own.
    if (disk.room == 0) {
      disk.room = -1;
      errno = disk.writeError;
      return -1;
    }
    size = std::min(size, static_cast<size_t>(disk.room));
    disk.room -= static_cast<long>(size);
  }
  return ::syscall(SYS_pwrite64, file, bytes, size, offset);
}

namespace velra {
namespace {

using test::TemporaryFolder;

class WriteInPlace : public ::testing::Test {
 protected:
  void SetUp() override { disk = {}; }
  void TearDown() override { disk = {}; }

  TemporaryFolder folder_;
};

TEST_F(WriteInPlace, WritesLongerShorterAndNewFiles) {
  for (const std::size_t size : {0U, 1U, 4096U, 8000U, 8000U, 100U, 0U, 70'000U, 3U}) {
    for (const bool reserves : {true, false}) {
      disk.reserves = reserves;
      const std::string bytes(size, reserves ? 'r' : 'e');
      EXPECT_EQ(writeFileInPlace(folder_ / "film.xml", bytes), "");
      EXPECT_EQ(folder_.read("film.xml"), bytes);
    }
  }
  EXPECT_EQ(folder_.snapshot().size(), 1U) << "nothing beside it";
}

TEST_F(WriteInPlace, AFullDiskCostsNothing) {
  const std::string old(4096, 'o');
  for (const std::size_t newSize : {100U, 4096U, 8000U}) {
    for (const long room : {0L, 100L, 5000L}) {
      for (const bool reserves : {true, false}) {
        disk = {};
        folder_.write("film.xml", old);
        disk.reserves = reserves;
        disk.room = room;
        const std::string reason =
            writeFileInPlace(folder_ / "film.xml", std::string(newSize, 'n'));
        disk = {};
        const std::string now = folder_.read("film.xml");
        EXPECT_EQ(now, reason.empty() ? std::string(newSize, 'n') : old)
            << newSize << " bytes, room for " << room << ": " << reason;
      }
    }
  }
}

TEST_F(WriteInPlace, AFailureTouchesNoOldFileAndLeavesNoNewOne) {
  folder_.write("film.xml", "old");
  const FileStamp before = fileStamp(folder_ / "film.xml");
  disk.reserveError = ENOSPC;
  EXPECT_EQ(writeFileInPlace(folder_ / "film.xml", "longer than before"), systemReason(ENOSPC));
  EXPECT_EQ(fileStamp(folder_ / "film.xml"), before);
  disk = {};
  disk.room = 2;
  EXPECT_EQ(writeFileInPlace(folder_ / "new.xml", "text"), systemReason(ENOSPC));
  EXPECT_FALSE(bFileExists(folder_ / "new.xml"));
}

TEST_F(WriteInPlace, ALimitOnFilesIsAnErrorAndNoEnd) {
  folder_.write("film.xml", std::string(4096, 'o'));
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit small{6000, before.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  const std::string reason = writeFileInPlace(folder_ / "film.xml", std::string(8000, 'n'));
  ::setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_NE(reason, "");
  EXPECT_EQ(folder_.read("film.xml"), std::string(4096, 'o'));
}

TEST_F(WriteInPlace, FollowsLinksAndRefusesTheRest) {
  folder_.write("film.xml", "old");
  ASSERT_EQ(::symlink("film.xml", (folder_ / "link.xml").c_str()), 0);
  ASSERT_EQ(::link((folder_ / "film.xml").c_str(), (folder_ / "hard.xml").c_str()), 0);
  EXPECT_EQ(writeFileInPlace(folder_ / "link.xml", "new text"), "");
  EXPECT_EQ(folder_.read("hard.xml"), "new text");
  EXPECT_EQ(writeFileInPlace(folder_.path(), "x"), systemReason(EISDIR));
  EXPECT_EQ(writeFileInPlace(folder_ / "missing/film.xml", "x"), systemReason(ENOENT));
  EXPECT_EQ(writeFileInPlace("", "x"), systemReason(ENOENT));
  ASSERT_EQ(::mkfifo((folder_ / "pipe").c_str(), 0600), 0);
  EXPECT_NE(writeFileInPlace(folder_ / "pipe", "x"), "");
  EXPECT_NE(writeFileInPlace("/dev/full", "x"), "");
}

}  // namespace
}  // namespace velra
