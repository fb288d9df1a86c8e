// SPDX-License-Identifier: GPL-3.0-or-later
#include "BenchMovies.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

namespace velra::bench {

namespace {

// True when it stands or the command makes it, whose last argument its path will be.
bool makeBy(const std::string& command, const std::string& path) {
  if (std::filesystem::exists(path)) return true;
  const std::string part = path + ".part";
  if (std::system(("ffmpeg -v fatal -y " + command + " '" + part + "'").c_str()) != 0) return false;
  std::filesystem::rename(part, path);
  return true;
}

bool make(const std::string& path, const std::string& codec, const char* size = "1280x720") {
  return makeBy(std::string("-f lavfi -t 40 -i testsrc2=s=") + size +
                    ":r=25,noise=alls=6:allf=t -f lavfi -t 40 -i sine=440:r=44100 " + codec,
                path);
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
                     folder + "/noise.avi",    folder + "/mpeg2.mpg",   folder + "/mpeg4.avi",
                     folder + "/h264-1080.mp4"};
  makeNoise(movies.noise);
  movies.made =
      make(movies.groups15, "-c:v mpeg1video -b:v 6M -g 15 -bf 2 -c:a mp2 -f mpeg") &&
      make(movies.keys250, "-c:v mpeg4 -b:v 4M -g 250 -c:a mp2 -f avi") &&
      make(movies.h264, "-c:v libx264 -preset veryfast -b:v 3M -g 250 -bf 2 -c:a aac -f mp4") &&
      make(movies.mpeg2, "-c:v mpeg2video -b:v 6M -g 15 -bf 2 -c:a mp2 -f vob") &&
      make(movies.mpeg4, "-c:v mpeg4 -b:v 4M -g 15 -bf 2 -c:a mp2 -f avi") &&
      make(movies.h264Large, "-c:v libx264 -preset veryfast -b:v 6M -g 250 -bf 2 -c:a aac -f mp4",
           "1920x1080");
  return movies;
}

std::string makeLongMovie(const std::string& folder, int seconds) {
  std::filesystem::create_directories(folder);
  const std::string part = folder + "/small.avi";
  const std::string path = folder + "/long.avi";
  const int times = seconds / static_cast<int>(kBenchSeconds);
  const bool made =
      makeBy(
          "-f lavfi -t 40 -i testsrc=s=320x180:r=25 -f lavfi -t 40 -i "
          "sine=440:r=22050 -c:v mpeg4 -q:v 31 -g 50 -c:a mp2 -b:a 32k -f avi",
          part) &&
      makeBy("-stream_loop " + std::to_string(times) + " -i '" + part + "' -c copy -f avi", path);
  return made ? path : "";
}

}  // namespace velra::bench
