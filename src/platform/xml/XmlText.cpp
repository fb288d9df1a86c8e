// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlText.h"

#include <libxml/entities.h>

#include "platform/xml/XmlLibrary.h"

namespace velra::xml {
namespace {

/// Collects text. What entities stand for has been bounded when the document was parsed.
class TextWalk {
 public:
  void walk(const xmlNode* first) {
    for (const xmlNode* node = first; node; node = node->next) visit(*node);
  }
  std::string take() { return std::move(text_); }

 private:
  void visit(const xmlNode& node) {
    if (node.type == XML_TEXT_NODE || node.type == XML_CDATA_SECTION_NODE) {
      if (!isLoneBlank(node)) text_ += viewOf(node.content);
    } else if (node.type == XML_ELEMENT_NODE) {
      walk(node.children);
    } else if (node.type == XML_ENTITY_REF_NODE) {
      expand(xmlGetDocEntity(node.doc, node.name));
    }
  }

  void expand(const xmlEntity* entity) {
    if (!entity) return;
    if (entity->children) {
      walk(entity->children);
    } else {
      text_ += viewOf(entity->content);
    }
  }

  std::string text_;
};

constexpr std::size_t kMostExpanded = 1'000'000;  // bytes, and steps
constexpr int kMostLevels = 1'000;

/// Follows the references to entities, as far as a sound file could have them.
class ExpansionWalk {
 public:
  bool exceeds(const xmlNode* first, int depth, bool inEntity) {
    for (const xmlNode* node = first; node; node = node->next) {
      if (inEntity && ++steps_ > kMostExpanded) return true;
      if (depth > kMostLevels || visit(*node, depth, inEntity)) return true;
    }
    return false;
  }

 private:
  bool visit(const xmlNode& node, int depth, bool inEntity) {
    switch (node.type) {
      case XML_ELEMENT_NODE:
        for (const xmlAttr* at = node.properties; at; at = at->next) {
          if (exceeds(at->children, depth + 1, inEntity)) return true;
        }
        return exceeds(node.children, depth + 1, inEntity);
      case XML_ENTITY_REF_NODE: {
        const xmlEntity* entity = xmlGetDocEntity(node.doc, node.name);
        if (!entity) return false;
        return entity->children ? exceeds(entity->children, depth + 1, true)
                                : grows(viewOf(entity->content));
      }
      default:
        return inEntity && grows(viewOf(node.content));
    }
  }

  bool grows(std::string_view text) { return (bytes_ += text.size()) > kMostExpanded; }

  std::size_t bytes_ = 0;
  std::size_t steps_ = 0;
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
  walk.walk(first);
  return walk.take();
}

bool expandsTooFar(const xmlDoc& document) {
  return ExpansionWalk().exceeds(xmlDocGetRootElement(&document), 0, false);
}

}  // namespace velra::xml
