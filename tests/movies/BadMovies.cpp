// SPDX-License-Identifier: GPL-3.0-or-later
#include "movies/BadMovies.h"

#include <filesystem>
#include <random>

#include "support/NumberedMovie.h"

namespace velra::test {

namespace {

std::string bytesOf(const std::string& name) {
  std::ifstream file(moviePath(name), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string noise(std::size_t size) {
  std::mt19937 random(7);
  std::string bytes(size, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  return bytes;
}

}  // namespace

std::vector<std::string> makeNoMovies(const TemporaryFolder& folder) {
  std::filesystem::create_directory(folder / "folder.avi");
  const std::string movie = moviePath("mpeg4-25.avi");
  const std::string portable = std::string("P6 2 2 255\n") + std::string(12, 'x');
  return {folder / "missing.avi",
          folder / "folder.avi",
          folder.write("nothing.mpg", ""),
          folder.write("zeros.mpg", std::string(300'000, '\0')),
          folder.write("random.avi", noise(300'000)),
          folder.write("text.avi", "a movie, but only by its name\n"),
          folder.write("page.asf", "<html><body>not found</body></html>"),
          folder.write("playlist.avi", "#EXTM3U\n#EXTINF:6,\n" + movie + "\n"),
          folder.write("list.avi", "ffconcat version 1.0\nfile '" + movie + "'\n"),
          folder.write("picture.avi", portable),
          folder.write("head.avi", bytesOf("mpeg4-25.avi").substr(0, 600)),
          folder.write("half.mp4", bytesOf("h264-b-23976.mp4").substr(0, 9'000))};
}

std::string makeCutMovie(const TemporaryFolder& folder, const std::string& name, double share) {
  const std::string bytes = bytesOf(name);
  const auto kept = static_cast<std::size_t>(static_cast<double>(bytes.size()) * share);
  return folder.write("cut " + name, bytes.substr(0, kept));
}

std::string makeHoledMovie(const TemporaryFolder& folder, const std::string& name) {
  std::string bytes = bytesOf(name);
  const std::size_t hole = bytes.size() / 10;
  bytes.replace(bytes.size() / 2, hole, std::string(hole, '\0'));
  return folder.write("holed " + name, bytes);
}

}  // namespace velra::test
