// SPDX-License-Identifier: GPL-3.0-or-later
#include "OtherPlayer.h"

#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>

#include "BenchMovies.h"

namespace velra::bench {

namespace {

const std::string kMpv =
    "timeout 300 mpv --no-config --really-quiet --vo=null --ao=null --hwdec=no";

// It times itself, so that the way to it and back does not count.
constexpr char kScript[] = R"(
local requests, begun = io.open(path), nil
mp.register_event("playback-restart", function()
  local spent = begun and (mp.get_time() - begun) * 1000 or 0
  io.write(spent, " ", mp.get_property_number("time-pos"), "\n")
  io.flush()
  local request = requests:read("*l")
  begun = mp.get_time()
  mp.command(request or "quit")
end)
)";

// What is more than that from the time that was sought is another picture.
constexpr double kExact = 1.5 * kBenchFrame;

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

std::unique_ptr<OtherPlayer> OtherPlayer::start(const std::string& movie, const std::string& folder,
                                                double earlier) {
  const std::string requests = folder + "/mpv.fifo";
  const std::string script = folder + "/mpv.lua";
  std::filesystem::remove(requests);
  if (::mkfifo(requests.c_str(), 0600) != 0) return nullptr;
  std::ofstream(script) << "local path = '" << requests << "'" << kScript;
  const std::string command = kMpv +
                              " --pause --hr-seek-demuxer-offset=" + std::to_string(earlier) +
                              " --script='" + script + "' '" + movie + "' 2> /dev/null";
  std::unique_ptr<OtherPlayer> player(new OtherPlayer(command, requests));
  return player->answer() ? std::move(player) : nullptr;
}

// Open for reading as well, the pipe waits for nobody at its other end.
OtherPlayer::OtherPlayer(const std::string& command, const std::string& requests)
    : requests_(requests), program_(::popen(command.c_str(), "r"), ::pclose) {}

OtherPlayer::~OtherPlayer() {
  requests_ << "quit" << std::endl;
}

std::optional<OtherPlayer::Answer> OtherPlayer::answer() {
  Answer found;
  const bool whole =
      program_ && std::fscanf(program_.get(), "%lf %lf", &found.spent, &found.position) == 2;
  return whole ? std::optional(found) : std::nullopt;
}

std::optional<OtherPlayer::Answer> OtherPlayer::act(const std::string& request) {
  requests_ << request << std::endl;
  return answer();
}

std::optional<double> OtherPlayer::seek(double time) {
  const auto done = act("seek " + std::to_string(time) + " absolute+exact");
  return done && std::abs(done->position - time) < kExact ? std::optional(done->spent)
                                                          : std::nullopt;
}

std::optional<double> OtherPlayer::stepBack() {
  const auto done = act("frame-back-step");
  return done ? std::optional(done->spent) : std::nullopt;
}

}  // namespace velra::bench
