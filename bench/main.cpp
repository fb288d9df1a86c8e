#include <cstdio>
#include <filesystem>

#include "MediaBench.h"

int main() {
  using namespace velra::bench;
  const std::string folder = std::filesystem::temp_directory_path() / "velra-bench";
  const std::vector<Measure> media = measureMedia(folder);
  if (media.empty()) std::puts("The movie was not measured: there is no ffmpeg to make one.");
  return report("The movie, 1280 x 720", media) ? 0 : 1;
}
