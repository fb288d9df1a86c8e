// SPDX-License-Identifier: GPL-3.0-or-later
#include "OtherPlayer.h"

#include <sys/resource.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>

#include "BenchMovies.h"

namespace velra::bench {

namespace {

constexpr int kStepsBack = 40;
const std::string kMpv =
    "timeout 120 mpv --no-config --really-quiet --vo=null --ao=null --hwdec=no";

// Each act begins a moment after the one before has ended, as a person's would.
constexpr char kScript[] = R"(
local spent, begun, farthest = {}, nil, 0
local function act(...)
  begun = mp.get_time()
  mp.commandv(...)
end
local acts = 0
local function next()
  acts = acts + 1
  if acts <= #times then
    act("seek", times[acts], "absolute+exact")
  elseif acts <= #times + steps then
    act("frame-back-step")
  else
    local file = io.open(target, "w")
    file:write(farthest, " ", table.concat(spent, " "), "\n")
    file:close()
    mp.command("quit")
  end
end
mp.register_event("playback-restart", function()
  if begun then table.insert(spent, (mp.get_time() - begun) * 1000) end
  if begun and acts <= #times then
    farthest = math.max(farthest, math.abs(mp.get_property_number("time-pos") - times[acts]))
  end
  begun = nil
  mp.add_timeout(0.02, next)
end)
)";

// What is more than that from the time that was sought is another picture.
constexpr double kExact = 1.5 * kBenchFrame;

// With mpv's own cure for files in which it begins to decode too late. Nothing for a seek that was
// not exact.
std::optional<OtherPlayer> measureWith(double earlier, const std::string& movie,
                                       const std::vector<double>& times,
                                       const std::string& folder) {
  const std::string script = folder + "/mpv.lua";
  const std::string target = folder + "/mpv.txt";
  std::ofstream lua(script);
  lua << "times, steps, target = {";
  for (const double t : times) lua << t << ",";
  lua << "}, " << kStepsBack << ", '" << target << "'\n" << kScript;
  lua.close();
  std::ofstream(target).close();
  const std::string command = kMpv +
                              " --pause --hr-seek-demuxer-offset=" + std::to_string(earlier) +
                              " --script='" + script + "' '" + movie + "' > /dev/null 2>&1";
  if (std::system(command.c_str()) != 0) return std::nullopt;
  OtherPlayer found;
  std::ifstream answer(target);
  double farthest = kExact;
  answer >> farthest;
  for (double spent = 0; answer >> spent;) {
    (found.seeks.count() < times.size() ? found.seeks : found.stepsBack).add(spent);
  }
  const bool all = found.seeks.count() == times.size() && found.stepsBack.count() == kStepsBack;
  return all && farthest < kExact ? std::optional(found) : std::nullopt;
}

// Processor time of the programs that were started and have ended, in seconds.
double spentByOthers() {
  struct rusage spent = {};
  ::getrusage(RUSAGE_CHILDREN, &spent);
  const auto seconds = [](const timeval& t) {
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
  };
  return seconds(spent.ru_utime) + seconds(spent.ru_stime);
}

// What a play of so many seconds takes of the processor, with the program's start. The pictures are
// made as a screen takes them, in the movie's own size.
std::optional<double> played(const std::string& movie, double from, double seconds) {
  const double before = spentByOthers();
  const std::string command = kMpv + " --vf=format=bgr0 --start=" + std::to_string(from) +
                              " --length=" + std::to_string(seconds) + " '" + movie +
                              "' > /dev/null 2>&1";
  if (std::system(command.c_str()) != 0) return std::nullopt;
  return spentByOthers() - before;
}

}  // namespace

std::optional<double> mpvPlayWork(const std::string& movie, double from, double seconds) {
  const auto start = played(movie, from, kPlayStart);
  const auto all = played(movie, from, kPlayStart + seconds);
  if (!start || !all) return std::nullopt;
  return std::max(*all - *start, 0.0) / seconds;
}

std::optional<OtherPlayer> measureMpv(const std::string& movie, const std::vector<double>& times,
                                      const std::string& folder) {
  for (const double earlier : {0.0, 0.75, 1.5}) {
    if (const auto found = measureWith(earlier, movie, times, folder)) return found;
  }
  return std::nullopt;
}

}  // namespace velra::bench
