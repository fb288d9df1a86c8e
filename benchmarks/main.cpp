#include <malloc.h>

#include <cstdio>
#include <filesystem>
#include <string_view>

#include "DocumentBench.h"
#include "MediaBench.h"

// Without an argument everything is measured; "documents" and "movie" measure one half.
int main(int count, char** arguments) {
  using namespace velra::bench;
  const std::string_view half = count > 1 ? arguments[1] : "";
  mallopt(M_TRIM_THRESHOLD, 256 * 1024 * 1024);  // as the program does
  const std::string folder = std::filesystem::temp_directory_path() / "velra-bench";
  std::filesystem::create_directories(folder);
  bool good = true;
  if (half != "movie") good = report("Documents", measureDocuments(folder)) && good;
  if (half == "documents") return good ? 0 : 1;
  const std::vector<Measure> media = measureMedia(folder);
  if (media.empty()) std::puts("The movie was not measured: there is no ffmpeg to make one.");
  return report("The movie, 1280 x 720", media) && good ? 0 : 1;
}
