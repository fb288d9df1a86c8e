// SPDX-License-Identifier: GPL-3.0-or-later
#include "BenchMovies.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

namespace velra::bench {

namespace {

bool make(const std::string& path, const std::string& codec) {
  if (std::filesystem::exists(path)) return true;
  const std::string part = path + ".part";
  const std::string command =
      "ffmpeg -v fatal -y -f lavfi -t 40 -i testsrc2=s=1280x720:r=25,noise=alls=6:allf=t"
      " -f lavfi -t 40 -i sine=440:r=44100 " +
      codec + " '" + part + "'";
  if (std::system(command.c_str()) != 0) return false;
  std::filesystem::rename(part, path);
  return true;
}

void makeNoise(const std::string& path) {
  std::mt19937 random(3);
  std::string bytes;
  bytes.resize(20'000'000);
  for (char& byte : bytes) byte = static_cast<char>(random());
  std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace

BenchMovies makeBenchMovies(const std::string& folder) {
  std::filesystem::create_directories(folder);
  BenchMovies movies{folder + "/groups15.mpg", folder + "/keys250.avi", folder + "/h264.mp4",
                     folder + "/noise.avi"};
  makeNoise(movies.noise);
  movies.made =
      make(movies.groups15, "-c:v mpeg1video -b:v 6M -g 15 -bf 2 -c:a mp2 -f mpeg") &&
      make(movies.keys250, "-c:v mpeg4 -b:v 4M -g 250 -c:a mp2 -f avi") &&
      make(movies.h264, "-c:v libx264 -preset veryfast -b:v 3M -g 250 -bf 2 -c:a aac -f mp4");
  return movies;
}

}  // namespace velra::bench
