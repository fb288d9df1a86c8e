// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlText.h"

#include <libxml/entities.h>

#include "platform/xml/XmlLibrary.h"

namespace velra::xml {
namespace {

/// Collects text. What comes out of entities is bounded, since a file of a few kilobytes can make
/// them stand for gigabytes; what stands in the file itself is bounded by the file.
class TextWalk {
 public:
  void walk(const xmlNode* first, int depth, bool inEntity) {
    for (const xmlNode* node = first; node; node = node->next) {
      if (inEntity && (++steps_ > kMostSteps || fromEntities_ >= kMostBytes)) return;
      visit(*node, depth, inEntity);
    }
  }
  std::string take() { return std::move(text_); }

 private:
  static constexpr std::size_t kMostBytes = 10'000'000;
  static constexpr int kMostSteps = 1'000'000;
  static constexpr int kMostLevels = 1000;

  void visit(const xmlNode& node, int depth, bool inEntity) {
    if (depth > kMostLevels) return;
    if (node.type == XML_TEXT_NODE || node.type == XML_CDATA_SECTION_NODE) {
      if (isLoneBlank(node)) return;
      append(viewOf(node.content), inEntity);
    } else if (node.type == XML_ELEMENT_NODE) {
      walk(node.children, depth + 1, inEntity);
    } else if (node.type == XML_ENTITY_REF_NODE) {
      expand(xmlGetDocEntity(node.doc, node.name), depth + 1);
    }
  }

  void expand(const xmlEntity* entity, int depth) {
    if (!entity) return;
    if (entity->children) {
      walk(entity->children, depth, true);
    } else {
      append(viewOf(entity->content), true);
    }
  }

  void append(std::string_view text, bool inEntity) {
    if (inEntity) {
      text = text.substr(0, kMostBytes - fromEntities_);
      fromEntities_ += text.size();
    }
    text_ += text;
  }

  std::string text_;
  std::size_t fromEntities_ = 0;
  int steps_ = 0;
};

}  // namespace

bool isBlankText(const xmlNode& node) {
  return node.type == XML_TEXT_NODE &&
         viewOf(node.content).find_first_not_of(" \t\r\n") == std::string_view::npos;
}

bool isLoneBlank(const xmlNode& node) {
  return !node.prev && !node.next && node.parent && node.parent->type == XML_ELEMENT_NODE &&
         isBlankText(node);
}

std::string textOf(const xmlNode* first) {
  if (!first || isLoneBlank(*first)) return {};
  if (!first->next && first->type == XML_TEXT_NODE) return std::string(viewOf(first->content));
  TextWalk walk;
  walk.walk(first, 0, false);
  return walk.take();
}

}  // namespace velra::xml
