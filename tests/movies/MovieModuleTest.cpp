// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/MovieModule.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/movie/NoMovies.h"
#include "support/TemporaryFolder.h"

namespace velra {
namespace {

TEST(MovieModule, IsRefusedWithASentenceWhereItIsNotThisProgramsOwn) {
  const test::TemporaryFolder folder;
  const auto built = std::filesystem::read_symlink("/proc/self/exe").parent_path();
  const std::string module = built / "libvelra-movies.so";
  const struct {
    std::string file;
    const char* sentence;
  } rows[] = {{folder / "none.so", "cannot be loaded."},
              {folder.write("text.so", "no library"), "cannot be loaded."},
              {"libm.so.6", "cannot be loaded."},
              {module, "belongs to another version."}};
  for (const auto& [file, sentence] : rows) {
    std::string reason;
    EXPECT_EQ(loadMovieModule(file, "0.0.0", reason), nullptr) << file;
    EXPECT_TRUE(
        reason.ends_with(std::string(": The part of the program that reads movies ") + sentence))
        << reason;
  }
}

TEST(MovieModule, LeavesAProgramThatRefusesMoviesWhereItIsMissing) {
  NoMovies none("There is none.");
  std::string reason;
  EXPECT_EQ(none.stills("movie.avi", reason), nullptr);
  EXPECT_EQ(reason, "There is none.");
  EXPECT_EQ(none.facts("movie.avi").reason, reason);
  EXPECT_EQ(none.shots("movie.avi", {}, {}, {}).reason, reason);
  EXPECT_EQ(none.digests({}).reason, reason);
  EXPECT_EQ(none.length("movie.avi", {}), 0);
  EXPECT_EQ(none.graph()->RenderFile("movie.avi", {}), reason);
}

}  // namespace
}  // namespace velra
