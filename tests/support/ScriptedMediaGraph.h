// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/movie/MediaGraph.h"

namespace velra::test {

/// What a scripted movie is told beforehand, and what it tells afterwards. It outlives the graphs
/// that play it, so that a test can look after the tool has closed.
struct MovieScript {
  std::string refusal;  // of RenderFile; "" opens
  double duration = 100;
  double frameLength = 0.04;
  std::shared_ptr<const PictureFrame> picture;

  double position = 0;
  bool running = false;
  int opened = 0;  // graphs that live now
  std::vector<std::string> calls;

  /// Lets the movie's own clock go on; it plays on to its end.
  void pass(double seconds) {
    if (running) position = std::min(duration, position + seconds);
  }
  std::vector<std::string> takeCalls() { return std::exchange(calls, {}); }
};

class ScriptedMediaGraph : public MediaGraph {
 public:
  explicit ScriptedMediaGraph(MovieScript& script) : script_(script) { ++script_.opened; }
  ~ScriptedMediaGraph() override { --script_.opened; }

  std::string RenderFile(const std::string&, const std::stop_token&) override {
    script_.calls.emplace_back("RenderFile");
    return script_.refusal;
  }
  void Run() override { note("Run", true); }
  void Pause() override { note("Pause", false); }
  void Stop() override { note("Stop", false); }
  double Duration() const override { return script_.duration; }
  double CurrentPosition() const override { return script_.position; }
  void setCurrentPosition(double seconds) override {
    script_.calls.emplace_back("seek");
    script_.position = seconds;
  }
  double AvgTimePerFrame() const override { return script_.frameLength; }
  int videoWidth() const override { return script_.picture ? script_.picture->width : 0; }
  int videoHeight() const override { return script_.picture ? script_.picture->height : 0; }
  void setShownSize(int, int) override {}
  std::shared_ptr<const PictureFrame> picture() const override { return script_.picture; }
  void setNotify(std::function<void(Notice)> notify) override { notify_ = std::move(notify); }

 private:
  void note(const char* call, bool running) {
    script_.calls.emplace_back(call);
    script_.running = running;
  }

  MovieScript& script_;
  std::function<void(Notice)> notify_;
};

}  // namespace velra::test
