// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Paths.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "base/RunTimeError.h"
#include "support/TemporaryFolder.h"

namespace velra {
namespace {

/// The library's answer, without the separator at the end that it keeps.
std::string standardForm(const std::string& path, const std::string& base) {
  std::string form = (std::filesystem::path(base) / path).lexically_normal();
  while (form.size() > 1 && form.back() == '/') form.pop_back();
  return form;
}

std::string randomPath(std::mt19937& random) {
  static const char* const pieces[] = {"a",  "b c",   ".",    "..",  "/",
                                       "//", "x.xml", "\xE9", "...", "\\"};
  std::string path = random() % 3 == 0 ? "/" : "";
  for (auto i = random() % 9; i > 0; --i) {
    path += pieces[random() % std::size(pieces)];
    if (random() % 3) path += '/';
  }
  return path;
}

TEST(Paths, AbsoluteFormIsTheLibrarysOnRandomPaths) {
  std::mt19937 random(20);
  for (int i = 0; i < 20'000; ++i) {
    const std::string path = randomPath(random);
    EXPECT_EQ(strAbsolutePath(path), standardForm(path, currentFolder())) << path;
    const std::string base = "/base/" + randomPath(random);
    EXPECT_EQ(strAbsolutePath(path, base), standardForm(path, base)) << base << " | " << path;
  }
}

TEST(Paths, AbsoluteFormDecidesTheCorners) {
  const struct {
    const char* path;
    const char* base;
    std::string form;
  } cases[] = {
      {"", "", currentFolder()},
      {"", "/base/", "/base"},
      {"..", "relative", currentFolder()},
      {"/", "", "/"},
      {"//", "", "/"},
      {"/../..", "", "/"},
      {"//h/a", "", "/h/a"},
      {"d/", "/", "/d"},
      {"/a", "/base", "/a"},
      {"x/../a", "/", "/a"},
  };
  for (const auto& one : cases)
    EXPECT_EQ(strAbsolutePath(one.path, one.base), one.form) << one.path;
  EXPECT_TRUE(bSamePath("/a/./b", "/a//b/"));
  EXPECT_TRUE(bSamePath("/a/b", "/a/b/c/.."));
  EXPECT_TRUE(bSamePath("/a", "/a/."));
  EXPECT_FALSE(bSamePath("/a/B", "/a/b"));
  EXPECT_FALSE(bSamePath("/\xC3\xA9", "/e\xCC\x81")) << "names are bytes";
}

TEST(Paths, SplitAtTheLastSeparatorAndPoint) {
  const struct {
    const char* path;
    const char* folder;
    const char* base;
    const char* extension;
  } cases[] = {
      {"", "", "", ""},
      {"film", "./", "film", ""},
      {"/arch/my.film.xml", "/arch/", "my.film", "xml"},
      {"/a.b/film", "/a.b/", "film", ""},
      {"a/b/", "a/b/", "", ""},
      {".xml", "./", "", "xml"},
      {"film.", "./", "film", ""},
      {"/film.xml", "/", "film", "xml"},
      {"C:\\a.xml", "./", "C:\\a", "xml"},
  };
  for (const auto& one : cases) {
    std::string folder = "old";
    std::string extension = "old";
    EXPECT_EQ(strSplitPath(one.path, folder, &extension), one.base) << one.path;
    EXPECT_EQ(folder, one.folder) << one.path;
    EXPECT_EQ(extension, one.extension) << one.path;
  }
  EXPECT_EQ(strFileName("/arch/velra.xsd"), "velra.xsd");
}

TEST(Paths, TheCurrentFolderChangesInOnePlace) {
  const test::TemporaryFolder folder;
  folder.write("sub/file", "x");
  changeCurrentFolder(folder.path());
  const unsigned generation = currentFolderGeneration();
  changeCurrentFolder("sub/../sub");
  EXPECT_EQ(currentFolder(), folder / "sub");
  EXPECT_EQ(currentFolderGeneration(), generation + 1);
  EXPECT_EQ(std::filesystem::current_path(), folder / "sub");
  changeCurrentFolder(".");
  EXPECT_EQ(currentFolderGeneration(), generation + 1) << "nothing changed";
  EXPECT_THROW(changeCurrentFolder("missing"), RunTimeError);
  EXPECT_EQ(currentFolder(), folder / "sub");
  EXPECT_EQ(strAbsolutePath("../file"), folder / "file");
}

}  // namespace
}  // namespace velra
