// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlDocument.h"
#include "platform/xml/XmlLibrary.h"
#include "platform/xml/XmlText.h"

namespace velra {

using xml::viewOf;

namespace {

/// Prefixes that nothing declares are part of the name in the tree.
std::string_view behindColon(std::string_view name) {
  return name.substr(name.rfind(':') + 1);
}

xmlNode* elementFrom(xmlNode* node) {
  while (node && node->type != XML_ELEMENT_NODE) node = node->next;
  return node;
}

XmlAttribute declarationAttribute(const xmlNs& space) {
  const std::string prefix(viewOf(space.prefix));
  return {prefix.empty() ? "xmlns" : "xmlns:" + prefix, prefix.empty() ? "xmlns" : prefix,
          std::string(viewOf(space.href))};
}

}  // namespace

bool XmlNode::isElement() const {
  return node_ && node_->type == XML_ELEMENT_NODE;
}

bool XmlNode::isText() const {
  return node_ && (node_->type == XML_TEXT_NODE || node_->type == XML_CDATA_SECTION_NODE ||
                   node_->type == XML_ENTITY_REF_NODE);
}

bool XmlNode::isComment() const {
  return node_ && node_->type == XML_COMMENT_NODE;
}

std::string XmlNode::nodeName() const {
  if (!node_) return {};
  if (isElement()) return xml::qualifiedName(node_->ns, node_->name);
  if (isComment()) return "#comment";
  if (node_->type == XML_TEXT_NODE) return "#text";
  if (node_->type == XML_CDATA_SECTION_NODE) return "#cdata-section";
  return std::string(viewOf(node_->name));
}

std::string_view XmlNode::baseName() const {
  if (!isElement()) return {};
  return behindColon(viewOf(node_->name));
}

std::string_view XmlNode::prefix() const {
  if (!isElement()) return {};
  if (node_->ns) return viewOf(node_->ns->prefix);
  const std::string_view name = viewOf(node_->name);
  const std::size_t colon = name.rfind(':');
  return colon == std::string_view::npos ? std::string_view() : name.substr(0, colon);
}

std::string XmlNode::text() const {
  if (isElement()) return xml::textOf(node_->children);
  if (!isText()) return {};
  // A node alone, without those that follow it.
  if (node_->type != XML_ENTITY_REF_NODE) return std::string(viewOf(node_->content));
  xmlNode alone = *node_;
  alone.next = nullptr;
  return xml::textOf(&alone);
}

std::string XmlNode::typedText() const {
  const xmlNode* only = isElement() ? node_->children : nullptr;
  return only && xml::isLoneBlank(*only) ? std::string(viewOf(only->content)) : text();
}

std::vector<XmlAttribute> XmlNode::attributes() const {
  std::vector<XmlAttribute> found;
  if (!isElement()) return found;
  for (const xmlNs* space = node_->nsDef; space; space = space->next) {
    found.push_back(declarationAttribute(*space));
  }
  for (const xmlAttr* at = node_->properties; at; at = at->next) {
    found.push_back({xml::qualifiedName(at->ns, at->name),
                     std::string(behindColon(viewOf(at->name))), xml::textOf(at->children)});
  }
  return found;
}

namespace {

bool hasName(const xmlAttr& attribute, std::string_view nodeName) {
  const std::string_view prefix = attribute.ns ? viewOf(attribute.ns->prefix) : std::string_view();
  const std::string_view name = viewOf(attribute.name);
  if (prefix.empty()) return name == nodeName;
  return nodeName.size() == prefix.size() + 1 + name.size() && nodeName.ends_with(name) &&
         nodeName.starts_with(prefix) && nodeName[prefix.size()] == ':';
}

const xmlAttr* findAttribute(const xmlNode* node, std::string_view nodeName) {
  const xmlAttr* at = node->properties;
  while (at && !hasName(*at, nodeName)) at = at->next;
  return at;
}

}  // namespace

std::string XmlNode::attribute(std::string_view nodeName) const {
  const xmlAttr* found = isElement() ? findAttribute(node_, nodeName) : nullptr;
  return found ? xml::textOf(found->children) : std::string();
}

bool XmlNode::hasAttribute(std::string_view nodeName) const {
  return isElement() && findAttribute(node_, nodeName);
}

XmlNode XmlNode::firstChild() const {
  xmlNode* first = isElement() ? node_->children : nullptr;
  return first && xml::isLoneBlank(*first) ? XmlNode() : XmlNode(first);
}

XmlNode XmlNode::nextSibling() const {
  return node_ ? XmlNode(node_->next) : XmlNode();
}

XmlNode XmlNode::firstElement() const {
  return isElement() ? XmlNode(elementFrom(node_->children)) : XmlNode();
}

XmlNode XmlNode::nextElement() const {
  return node_ ? XmlNode(elementFrom(node_->next)) : XmlNode();
}

int iChildElements(const XmlNode& node) {
  int count = 0;
  for (XmlNode child = node.firstElement(); child; child = child.nextElement()) ++count;
  return count;
}

}  // namespace velra
