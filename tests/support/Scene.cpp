// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Scene.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/files/Files.h"

namespace velra::test {

std::vector<Scene> scenesIn(const std::string& folder) {
  std::set<std::string> files;
  const std::string scenes = std::string(VELRA_SOURCE_DIR) + "/tests/" + folder + "/scenes";
  for (const auto& entry : std::filesystem::directory_iterator(scenes)) files.insert(entry.path());
  std::vector<Scene> found;
  for (const std::string& file : files) {
    const std::string text = "\n" + readFile(file).bytes;
    for (std::size_t at = text.find("\n== "); at != std::string::npos;) {
      const std::size_t next = text.find("\n== ", at + 1);
      const std::string scene = text.substr(at + 1, next == std::string::npos ? next : next - at);
      found.push_back({file, scene.substr(3, scene.find('\n') - 3), scene});
      at = next;
    }
  }
  return found;
}

void Actor::play(const Scene& scene) {
  told_.clear();
  std::vector<std::string> lines = split(scene.text, '\n');
  lines.pop_back();  // behind the last end of line
  for (const std::string& line : lines) {
    if (!line.empty() && std::string("=#>").find(line[0]) == std::string::npos) continue;
    told_ += line + "\n";
    if (line.starts_with("> ")) perform(line.substr(2));
  }
  const char* write = std::getenv("VELRA_SCENES");
  if (!write || std::string(write) != "write") {
    EXPECT_EQ(told_, scene.text);
    return;
  }
  const std::string all = readFile(scene.file).bytes;
  std::ofstream(scene.file) << replaceAll(all, scene.text, told_);
}

void Actor::perform(const std::string& command) {
  const std::size_t arrow = command.find(" <- ");
  const std::string act = command.substr(0, arrow);
  std::vector<std::string> answers;
  if (arrow != std::string::npos) {
    for (const std::string& answer : split(command.substr(arrow + 4), '|')) {
      answers.emplace_back(trimmed(answer));
    }
  }
  prepare(answers);
  const std::size_t blank = act.find(' ');
  const auto verb = verbs_.find(act.substr(0, blank));
  ASSERT_NE(verb, verbs_.end()) << act;
  try {
    verb->second(blank == std::string::npos ? "" : act.substr(blank + 1));
    say("");
  } catch (const RunTimeError& error) {
    say("error: " + error.description());
  }
}

void Actor::say(const std::string& line) {
  std::vector<std::string> lines = takeShown();
  if (!line.empty()) lines.push_back(line);
  for (std::string told : lines) {
    for (const auto& [from, to] : replaced_) told = replaceAll(told, from, to);
    told_ += replaceAll(told, "\n", "\\n") + "\n";
  }
}

}  // namespace velra::test
