// SPDX-License-Identifier: GPL-3.0-or-later
#include <malloc.h>

#include <QApplication>
#include <cstdlib>
#include <filesystem>
#include <string_view>

#include "DayBench.h"
#include "DocumentBench.h"
#include "HostShare.h"
#include "MediaBench.h"
#include "PieceBench.h"
#include "RescueBench.h"
#include "RunFolder.h"
#include "StartBench.h"
#include "StripBench.h"
#include "ToolBench.h"
#include "TreeBench.h"

namespace {

using namespace velra::bench;

struct Part {
  std::string_view name;
  const char* title;
  std::vector<Measure> (*measure)(const std::string& folder);
};

constexpr Part kParts[] = {
    {"start", "The start", measureStart},
    {"documents", "Documents", measureDocuments},
    {"trees", "The trees", measureTrees},
    {"tool", "The expression tool", measureTool},
    {"strip", "A level of 2,000 segments", measureStrip},
    {"movie", "The movie, 1280 x 720", measureMedia},
    {"rescue", "Unsaved work of 50,000 objects", measureRescue},
    {"pieces", "The pieces", measurePieces},
    {"day", "A day at 50,000 objects", measureDay},
};

}  // namespace

// Without an argument every part is measured, else the one of that name.
int main(int count, char** arguments) {
  mallopt(M_TRIM_THRESHOLD, 256 * 1024 * 1024);  // as the program does, like the next two
  mallopt(M_MMAP_THRESHOLD, 32 * 1024 * 1024);
  mallopt(M_MXFAST, 0);
  ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
  const QApplication application(count, arguments);
  const std::string_view only = count > 1 ? arguments[1] : "";
  const std::string folder = std::filesystem::temp_directory_path() / "velra-bench";
  std::filesystem::create_directories(folder);
  bool good = true;
  for (const Part& part : kParts) {
    if (only.empty() || only == part.name) {
      const HostShare share;
      good = report(part.title, part.measure(folder)) && good;
      share.print();
    }
  }
  RunFolder::removeAll(folder);
  return good ? 0 : 1;
}
