// SPDX-License-Identifier: GPL-3.0-or-later
#include "MediaBench.h"

#include <atomic>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <random>
#include <thread>

#include "BenchMovies.h"
#include "OtherPlayer.h"
#include "movies/FrameSource.h"
#include "movies/PictureConverter.h"
#include "platform/movie/FrameGrabber.h"
#include "platform/movie/MediaGraph.h"
#include "platform/movie/MovieProbe.h"

namespace velra::bench {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kSeeks = 80;
constexpr int kSteps = 200;
constexpr int kRounds = 3;
constexpr double kPlaySeconds = 10;
constexpr int kStepsBeside = 40;
constexpr std::chrono::milliseconds kBetweenSeeks{20};  // an act begins as a person's would

class RandomTimes {
 public:
  double next() { return spread_(random_); }

 private:
  std::mt19937 random_{1895};
  std::uniform_real_distribution<double> spread_{0.0, kBenchSeconds - 1};
};

/// A graph whose notices are counted.
struct Watched {
  std::unique_ptr<MediaGraph> graph = makeMediaGraph();
  std::atomic<int> pictures{0};

  explicit Watched(const std::string& path) {
    graph->setNotify([this](MediaGraph::Notice notice) {
      if (notice == MediaGraph::Notice::PictureChanged) ++pictures;
    });
    graph->RenderFile(path, {});
    waitFor(1);
  }
  ~Watched() { graph->setNotify({}); }
  Watched(const Watched&) = delete;
  Watched& operator=(const Watched&) = delete;

  void waitFor(int count) const {
    const auto stop = Clock::now() + std::chrono::seconds(10);
    while (pictures < count && Clock::now() < stop) {
      std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
  }
};

std::vector<double> randomTimes() {
  RandomTimes random;
  std::vector<double> times(kSeeks);
  for (double& t : times) t = random.next();
  return times;
}

Times seekTimes(const std::string& path, const std::vector<double>& targets) {
  FrameSource source;
  PictureConverter converter;
  source.open(path);
  Times times;
  for (const double t : targets) times.take([&] { converter.convert(*source.at(t)->frame); });
  return times;
}

Measure seeks(const std::string& name, const std::string& path, double budget) {
  return {"exact seek, " + name + ", p95", seekTimes(path, randomTimes()).p95(), "ms", budget};
}

Measure steps(const std::string& name, const std::string& path, double step) {
  FrameSource source;
  PictureConverter converter;
  source.open(path);
  double t = kBenchSeconds / 2;
  source.at(t);
  Times times;
  for (int i = 0; i < kSteps; ++i) {
    t += step;
    times.take([&] { converter.convert(*source.at(t)->frame); });
  }
  return {(step > 0 ? "step +1, " : "step -1, ") + name + ", p95", times.p95(), "ms", 25};
}

/// What both players took for the same acts, each in the same order.
struct Beside {
  Times own;
  Times other;
};

// Seek by seek in turns, since the machine changes its pace within seconds; nothing is converted or
// painted. Nothing when the other did not show a picture that was sought.
std::optional<Beside> seeksBeside(FrameSource& source, OtherPlayer& player) {
  Beside seeks;
  for (const double t : randomTimes()) {
    std::this_thread::sleep_for(kBetweenSeeks);
    seeks.own.take([&] { source.at(t); });
    std::this_thread::sleep_for(kBetweenSeeks);
    const auto other = player.seek(t);
    if (!other) return std::nullopt;
    seeks.other.add(*other);
  }
  return seeks;
}

// Of each seek the better of three counts, since others disturb now one player and now the other.
std::optional<Beside> bestSeeksBeside(FrameSource& source, OtherPlayer& player) {
  Beside best;
  for (int round = 0; round < kRounds; ++round) {
    const auto seeks = seeksBeside(source, player);
    if (!seeks) return std::nullopt;
    best.own.again(seeks->own);
    best.other.again(seeks->other);
  }
  return best;
}

std::optional<Beside> stepsBeside(FrameSource& source, OtherPlayer& player) {
  Beside steps;
  source.at(kBenchSeconds / 2);
  for (int i = 1; i <= kStepsBeside; ++i) {
    const double t = kBenchSeconds / 2 - i * kBenchFrame;
    steps.own.take([&] { source.at(t); });
    const auto other = player.stepBack();
    if (!other) return std::nullopt;
    steps.other.add(*other);
  }
  return steps;
}

// With a player that begins to decode early enough for this movie. Nothing without the other.
void addBeside(std::vector<Measure>& measures, const std::string& name, const std::string& path,
               const std::string& folder) {
  FrameSource source;
  source.open(path);
  for (const double earlier : {0.0, 0.75, 1.5}) {
    const auto player = OtherPlayer::start(path, folder, earlier);
    if (!player) return;
    const auto seeks = bestSeeksBeside(source, *player);
    const auto steps = seeks ? stepsBeside(source, *player) : std::nullopt;
    if (!steps) continue;
    const double seek = seeks->own.p95() / seeks->other.p95();
    measures.push_back({"exact seek, " + name + ", p95 / mpv's", seek, "", 1});
    const double step = steps->own.p95() / steps->other.p95();
    measures.push_back({"step -1, " + name + ", p95 / mpv's", step, "", 0.2});
    return;
  }
}

// Of a file that seems to be another one each time, since what was read of the last is kept.
Measure opens(const std::string& name, const std::string& path) {
  Times times;
  for (int i = 0; i < 10; ++i) {
    std::filesystem::last_write_time(path, std::filesystem::file_time_type::clock::now());
    const auto graph = makeMediaGraph();
    times.take([&] { graph->RenderFile(path, {}); });
  }
  return {"open, " + name + ", p95", times.p95(), "ms", 300};
}

Measure refusals(const std::string& path) {
  Times times;
  for (int i = 0; i < 10; ++i) {
    const auto graph = makeMediaGraph();
    times.take([&] { graph->RenderFile(path, {}); });
  }
  return {"refusal of 20 MB of noise, p95", times.p95(), "ms", 150};
}

Times stills(const std::string& path, const std::vector<double>& times, const std::string& folder) {
  Times stills;
  for (const double t : times) {
    stills.take([&] { grabFrame(path, t, {1280, 720}, folder + "/still.bmp"); });
  }
  return stills;
}

// Beside the seeks that they need in a movie that is open: where keys are far apart these are most
// of it, and decoding is as fast or slow as the machine is at that hour.
void addStills(std::vector<Measure>& measures, const BenchMovies& movies,
               const std::string& folder) {
  const std::string name = "still with a new opening, ";
  const std::vector<double> targets = randomTimes();
  const double near = stills(movies.groups15, targets, folder).p95();
  measures.push_back({name + "key every 15, p95", near, "ms", 300});
  const double far = stills(movies.h264, targets, folder).p95();
  std::printf("%sh264: %.0f ms\n", name.c_str(), far);
  const double seek = seekTimes(movies.h264, targets).p95();
  measures.push_back({name + "h264, p95 / a seek's", far / seek, "", 1.5});
}

void addPlayStarts(std::vector<Measure>& measures, const std::string& path) {
  Watched movie(path);
  RandomTimes random;
  Times starts;
  Times stops;
  for (int i = 0; i < 20; ++i) {
    const int before = movie.pictures;
    const double t = random.next();
    starts.take([&] {
      movie.graph->setCurrentPosition(t);
      movie.graph->Run();
      movie.waitFor(before + 1);
    });
    movie.waitFor(before + 3);
    stops.take([&] { movie.graph->Stop(); });
  }
  measures.push_back({"run to picture, p95", starts.p95(), "ms", 150});
  measures.push_back({"stop, worst", stops.at(1), "ms", 50});
}

// Until the position is reached and its notice has come, or for so long at most.
void playUntil(const Watched& movie, double position) {
  const auto stop = Clock::now() + std::chrono::seconds(20);
  while (movie.graph->CurrentPosition() < position && Clock::now() < stop) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  std::this_thread::sleep_for(std::chrono::milliseconds(5));
}

// What goes before, the seek and the first pictures, counts on neither side.
void addPlay(std::vector<Measure>& measures, const std::string& name, const std::string& path) {
  constexpr double kFrom = 5;
  const double memory = residentMegabytes();
  Watched movie(path);
  movie.graph->setCurrentPosition(kFrom);
  movie.graph->Run();
  playUntil(movie, kFrom + kPlayStart);
  const int before = movie.pictures;
  const double first = movie.graph->CurrentPosition();
  const double processor = processorSeconds();
  const auto start = Clock::now();
  playUntil(movie, first + kPlaySeconds);
  const double spent = std::chrono::duration<double>(Clock::now() - start).count();
  const double used = (processorSeconds() - processor) / spent * 100;
  const int shown = movie.pictures - before;
  const double last = movie.graph->CurrentPosition();
  movie.graph->Stop();
  const long missed = std::max(0L, std::lround((last - first) / kBenchFrame) - shown);
  measures.push_back({"play, " + name + ", pictures missed", static_cast<double>(missed), "", 0});
  measures.push_back({"play, " + name + ", of one core", used, "%", 20});
  const double added = residentMegabytes() - memory;
  if (const auto other = mpvPlayWork(path, kFrom, kPlaySeconds)) {
    measures.push_back({"play, " + name + ", of one core / mpv's", used / 100 / *other, "", 0.8});
  }
  measures.push_back({"play, " + name + ", memory added", added, "MB", 200});
}

}  // namespace

std::vector<Measure> measureMedia(const std::string& folder) {
  const BenchMovies movies = makeBenchMovies(folder);
  if (!movies.made) {
    std::puts("The movie was not measured: there is no ffmpeg to make one.");
    return {};
  }
  std::vector<Measure> measures;
  measures.push_back(seeks("key every 15", movies.groups15, 60));
  measures.push_back(seeks("key every 250", movies.keys250, 350));
  measures.push_back(seeks("h264", movies.h264, 350));
  for (const double step : {kBenchFrame, -kBenchFrame}) {
    measures.push_back(steps("key every 15", movies.groups15, step));
    measures.push_back(steps("key every 250", movies.keys250, step));
    measures.push_back(steps("h264", movies.h264, step));
  }
  measures.push_back(opens("key every 15", movies.groups15));
  measures.push_back(opens("key every 250", movies.keys250));
  measures.push_back(opens("h264", movies.h264));
  measures.push_back(refusals(movies.noise));
  addStills(measures, movies, folder);
  addPlayStarts(measures, movies.groups15);
  addBeside(measures, "MPEG-2, key every 15", movies.mpeg2, folder);
  addBeside(measures, "MPEG-4, key every 15", movies.mpeg4, folder);
  addBeside(measures, "h264", movies.h264, folder);
  addBeside(measures, "h264, 1920 x 1080", movies.h264Large, folder);
  addPlay(measures, "key every 15", movies.groups15);
  addPlay(measures, "h264", movies.h264);
  return measures;
}

}  // namespace velra::bench
