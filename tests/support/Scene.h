// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace velra::test {

/// A text that begins with "== " and its name. It tells in lines that begin with "> " what is done,
/// and in those below each what comes of it; lines that begin with "#" say why.
struct Scene {
  std::string file;
  std::string name;
  std::string text;
};

/// Those in tests/FOLDER/scenes.
std::vector<Scene> scenesIn(const std::string& folder);

/// What stands before and behind a mark; nothing behind when there is no mark.
inline std::pair<std::string, std::string> halves(const std::string& text,
                                                  const std::string& mark) {
  const std::size_t at = text.find(mark);
  if (at == std::string::npos) return {text, ""};
  return {text.substr(0, at), text.substr(at + mark.size())};
}

/// Plays scenes. A line "> VERB OBJECT <- ANSWER | ANSWER" calls the verb with its object, and
/// first `prepare` with the answers, which stand behind the arrow.
class Actor {
 public:
  virtual ~Actor() = default;

  /// Fails unless all came as the scene tells. With VELRA_SCENES=write in the environment it writes
  /// into the file what came instead: the difference is read, and committed or not.
  void play(const Scene& scene);

 protected:
  using Verb = std::function<void(const std::string& object)>;

  virtual void prepare(const std::vector<std::string>& /*answers*/) {}
  /// What was shown by itself since the last call, in lines.
  virtual std::vector<std::string> takeShown() = 0;
  /// A line in its own place among what is shown.
  void say(const std::string& line);

  std::map<std::string, Verb> verbs_;
  std::map<std::string, std::string> replaced_;  // in what is told

 private:
  void perform(const std::string& command);

  std::string told_;
};

/// Makes a test of each scene of a folder.
template <class Player>
bool makeScenes(const std::string& folder) {
  class SceneTest : public ::testing::Test {
   public:
    explicit SceneTest(Scene scene) : scene_(std::move(scene)) {}
    void TestBody() override { Player().play(scene_); }

   private:
    Scene scene_;
  };
  for (const Scene& scene : scenesIn(folder)) {
    ::testing::RegisterTest("Scenes", scene.name.c_str(), nullptr, nullptr, scene.file.c_str(), 1,
                            [scene]() -> ::testing::Test* { return new SceneTest(scene); });
  }
  return true;
}

}  // namespace velra::test
