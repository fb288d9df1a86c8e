// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "base/Text.h"

namespace velra::test {

struct ModelNode {
  std::string className;
  std::string parent;
  std::string place;  // what contentOf tells behind the parent
};

/// What a document has to hold, as plainly as it can be told: objects by their titles, each below
/// another.
struct Model {
  std::map<std::string, ModelNode> nodes;

  /// Of what contentOf gave.
  explicit Model(const std::string& content) {
    for (const std::string& line : split(content, '\n')) {
      const std::vector<std::string> words = split(line, ' ');
      if (words.size() < 4) continue;
      ModelNode& node = nodes[words[1]] = {words[0], words[3], ""};
      for (std::size_t i = 4; i < words.size(); ++i) node.place += " " + words[i];
    }
  }

  /// As contentOf gives it.
  std::string content() const {
    std::set<std::string> lines;
    for (const auto& [title, node] : nodes) {
      lines.insert(node.className + " " + title + " in " + node.parent + node.place + "\n");
    }
    std::string content;
    for (const std::string& line : lines) content += line;
    return content;
  }

  using Choice = std::function<bool(const std::string& title, const ModelNode& node)>;
  std::vector<std::string> titles(const Choice& choice) const {
    std::vector<std::string> chosen;
    for (const auto& [title, node] : nodes) {
      if (choice(title, node)) chosen.push_back(title);
    }
    return chosen;
  }
  std::vector<std::string> below(const std::string& parent) const {
    return titles([&](auto&, const ModelNode& node) { return node.parent == parent; });
  }

  void rename(const std::string& title, const std::string& newTitle) {
    for (const std::string& each : below(title)) nodes[each].parent = newTitle;
    auto node = nodes.extract(title);
    node.key() = newTitle;
    nodes.insert(std::move(node));
  }
  /// What is below it goes as well.
  void remove(const std::string& title) {
    for (const std::string& each : below(title)) remove(each);
    nodes.erase(title);
  }
};

}  // namespace velra::test
