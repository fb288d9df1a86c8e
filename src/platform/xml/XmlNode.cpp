// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlDocument.h"
#include "platform/xml/XmlLibrary.h"
#include "platform/xml/XmlRow.h"

namespace velra {

using xml::RowNode;

namespace {

using RowKind = RowNode::Kind;

constexpr std::string_view kDeclares = "xmlns";

}  // namespace

XmlNode XmlNode::firstIn() const {
  if (!isElement()) return {};
  const RowNode* const first = node_ + 1 + node_->attributes;
  return first == node_ + node_->span ? XmlNode() : XmlNode(row_, first);
}

bool XmlNode::isElement() const {
  return node_ && node_->kind == RowKind::Element;
}

bool XmlNode::isText() const {
  return node_ && (node_->kind == RowKind::Text || node_->kind == RowKind::Cdata ||
                   node_->kind == RowKind::Reference);
}

bool XmlNode::isComment() const {
  return node_ && node_->kind == RowKind::Comment;
}

std::string_view XmlNode::nodeName() const {
  if (!node_) return {};
  if (isComment()) return "#comment";
  if (node_->kind == RowKind::Text) return "#text";
  if (node_->kind == RowKind::Cdata) return "#cdata-section";
  return row_->name(*node_);
}

std::string_view XmlNode::baseName() const {
  return isElement() ? xml::behindColon(row_->name(*node_)) : std::string_view();
}

std::string_view XmlNode::prefix() const {
  return isElement() ? row_->name(*node_).substr(0, node_->prefixSize) : std::string_view();
}

std::string_view XmlNode::text() const {
  return node_ ? row_->text(*node_) : std::string_view();
}

std::string_view XmlNode::typedText() const {
  const XmlNode first = firstIn();
  const bool blank = first && first.node_->kind == RowKind::LoneBlank;
  return blank ? first.text() : text();
}

std::vector<XmlAttribute> XmlNode::attributes() const {
  std::vector<XmlAttribute> found;
  if (!isElement()) return found;
  for (const RowNode* at = node_ + 1; at != node_ + 1 + node_->attributes; ++at) {
    const std::string_view name = row_->name(*at);
    const bool prefixed = at->kind == RowKind::Declaration && name.size() > kDeclares.size();
    const std::string_view base =
        prefixed ? name.substr(kDeclares.size() + 1) : xml::behindColon(name);
    found.push_back({std::string(name), std::string(base), std::string(row_->text(*at))});
  }
  return found;
}

std::optional<std::string_view> XmlNode::attribute(std::string_view nodeName) const {
  if (!isElement()) return std::nullopt;
  for (const RowNode* at = node_ + 1; at != node_ + 1 + node_->attributes; ++at) {
    if (at->kind == RowKind::Attribute && row_->name(*at) == nodeName) return row_->text(*at);
  }
  return std::nullopt;
}

XmlNode XmlNode::firstChild() const {
  const XmlNode first = firstIn();
  return first && first.node_->kind == RowKind::LoneBlank ? XmlNode() : first;
}

XmlNode XmlNode::nextSibling() const {
  return !node_ || node_->last ? XmlNode() : XmlNode(row_, node_ + node_->span);
}

XmlNode XmlNode::elementFrom(XmlNode node) {
  while (node && !node.isElement()) node = node.nextSibling();
  return node;
}

XmlNode XmlNode::firstElement() const {
  return elementFrom(firstIn());
}

XmlNode XmlNode::nextElement() const {
  return elementFrom(nextSibling());
}

int iChildElements(const XmlNode& node) {
  int count = 0;
  for (XmlNode child = node.firstElement(); child; child = child.nextElement()) ++count;
  return count;
}

}  // namespace velra
