// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/RowReader.h"
#include "platform/xml/XmlLibrary.h"
#include "platform/xml/XmlText.h"

namespace velra::xml {

namespace {

using Kind = RowNode::Kind;

std::string_view prefixOf(const xmlNs* space) {
  return space ? viewOf(space->prefix) : std::string_view();
}

/// Takes the content of an element out of its document while it lives.
class EmptyRoot {
 public:
  explicit EmptyRoot(xmlNode& root) : root_(root), first_(root.children), last_(root.last) {
    root_.children = root_.last = nullptr;
  }
  ~EmptyRoot() {
    root_.children = first_;
    root_.last = last_;
  }
  EmptyRoot(const EmptyRoot&) = delete;
  EmptyRoot& operator=(const EmptyRoot&) = delete;

 private:
  xmlNode& root_;
  xmlNode* first_;
  xmlNode* last_;
};

class TreeWalk {
 public:
  explicit TreeWalk(std::size_t bytes) : maker_(bytes) {}

  // The parser refuses a depth that this could not go down to.
  void addElement(const xmlNode& element) {
    open(element);
    for (const xmlNs* space = element.nsDef; space; space = space->next) declare(*space);
    for (const xmlAttr* at = element.properties; at; at = at->next) {
      maker_.addAttribute(Kind::Attribute, prefixOf(at->ns), viewOf(at->name),
                          textOf(at->children));
    }
    for (const xmlNode* child = element.children; child; child = child->next) add(*child);
    maker_.close();
  }

  Row take(std::string shell) {
    return maker_.take(std::make_shared<const std::string>(std::move(shell)));
  }

 private:
  // Prefixes that nothing declares are part of the name in the tree.
  void open(const xmlNode& element) {
    const std::string_view name = viewOf(element.name);
    const std::size_t colon = element.ns ? name.npos : name.rfind(':');
    if (colon == name.npos || colon == 0) {
      maker_.open(prefixOf(element.ns), name);
    } else {
      maker_.open(name.substr(0, colon), name.substr(colon + 1));
    }
  }

  void declare(const xmlNs& space) {
    const std::string_view prefix = viewOf(space.prefix);
    const std::string_view declares = "xmlns";
    maker_.addAttribute(Kind::Declaration, prefix.empty() ? prefix : declares,
                        prefix.empty() ? declares : prefix, viewOf(space.href));
  }

  void add(const xmlNode& node) {
    switch (node.type) {
      case XML_ELEMENT_NODE:
        return addElement(node);
      case XML_TEXT_NODE:
        return maker_.add(isLoneBlank(node) ? Kind::LoneBlank : Kind::Text, {},
                          viewOf(node.content));
      case XML_CDATA_SECTION_NODE:
        return maker_.add(Kind::Cdata, {}, viewOf(node.content));
      case XML_ENTITY_REF_NODE:
        return maker_.add(Kind::Reference, viewOf(node.name), textOfReference(node));
      case XML_COMMENT_NODE:
        return maker_.add(Kind::Comment, {}, {});
      default:
        return maker_.add(Kind::Instruction, viewOf(node.name), {});
    }
  }

  // Alone, without the nodes that follow it.
  static std::string textOfReference(const xmlNode& node) {
    xmlNode alone = node;
    alone.next = nullptr;
    return textOf(&alone);
  }

  RowMaker maker_;
};

}  // namespace

Row rowByTree(const std::string& bytes, const std::string& path, std::string& reason) {
  const Document document = parse(bytes, path, reason);
  if (!document) return nullptr;
  xmlNode& root = *xmlDocGetRootElement(document.get());
  TreeWalk walk(bytes.size());
  walk.addElement(root);
  const EmptyRoot emptied(root);
  return walk.take(serialise(document.get(), hadDeclaration(document.get())));
}

}  // namespace velra::xml
