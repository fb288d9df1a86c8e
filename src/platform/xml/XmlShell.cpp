// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlShell.h"

#include <new>

#include "base/RunTimeError.h"
#include "platform/xml/XmlChecks.h"
#include "platform/xml/XmlLibrary.h"

namespace velra {
namespace {

// No document can hold it, so it marks where the content goes.
constexpr char kMark = '\x01';

/// The prefix that an attribute declares; nothing when it is no declaration of a namespace.
std::optional<std::string> declaredPrefix(const std::string& name) {
  if (name == "xmlns") return std::string();
  if (name.starts_with("xmlns:")) return name.substr(6);
  return std::nullopt;
}

void declareNamespace(xmlNode* node, const std::string& prefix, const std::string& value) {
  for (xmlNs* space = node->nsDef; space; space = space->next) {
    if (xml::viewOf(space->prefix) != prefix) continue;
    xmlFree(const_cast<xmlChar*>(space->href));  // NOLINT: the library's own way to replace it
    space->href = xmlStrdup(xml::bytesOf(value));
    return;
  }
  xmlNewNs(node, xml::bytesOf(value), prefix.empty() ? nullptr : xml::bytesOf(prefix));
}

/// Sets or replaces the attribute whose whole name is the given one.
void setAttribute(xmlNode* node, const std::string& name, const std::string& value) {
  xml::checkName(name);
  xml::checkText(value, name);
  if (const auto prefix = declaredPrefix(name)) {
    declareNamespace(node, *prefix, value);
    return;
  }
  for (xmlAttr* at = node->properties; at; at = at->next) {
    if (xml::qualifiedName(at->ns, at->name) != name) continue;
    xmlSetNsProp(node, at->ns, at->name, xml::bytesOf(value));
    return;
  }
  xmlNewNsProp(node, nullptr, xml::bytesOf(name), xml::bytesOf(value));
}

xml::Document documentOf(const std::string& shell) {
  std::string reason;
  xml::Document document = xml::parseShell(shell, reason);
  if (!document) raise(kInvalidArgument, "the shell of a document: " + reason);
  return document;
}

XmlShell::Parts partsOf(const std::string& shell) {
  const xml::Document document = documentOf(shell);
  xmlAddChild(xmlDocGetRootElement(document.get()), xmlNewText(xml::bytesOf({kMark})));
  const bool ownInstruction = document->children->type == XML_PI_NODE;
  const std::string whole =
      xml::serialise(document.get(), xml::hadDeclaration(document.get()) || !ownInstruction);
  const std::size_t mark = whole.find(kMark);
  return {whole.substr(0, mark), whole.substr(mark + 1)};
}

}  // namespace

const XmlShell::Parts& XmlShell::parts() const {
  if (!parts_) parts_ = partsOf(text_);
  return *parts_;
}

std::string newShell(const std::string& rootName, const XmlAttributes& attributes) {
  xml::initXml();
  xml::checkName(rootName);
  const xml::Document document(xmlNewDoc(nullptr));
  if (!document) throw std::bad_alloc();
  xmlNode* root = xmlNewDocRawNode(document.get(), nullptr, xml::bytesOf(rootName), nullptr);
  if (!root) throw std::bad_alloc();
  xmlDocSetRootElement(document.get(), root);
  for (const auto& [name, value] : attributes) setAttribute(root, name, value);
  return xml::serialise(document.get(), false);
}

std::string withRootAttributes(const std::string& shell, const XmlAttributes& attributes) {
  const xml::Document document = documentOf(shell);
  xmlNode* root = xmlDocGetRootElement(document.get());
  for (const auto& [name, value] : attributes) setAttribute(root, name, value);
  return xml::serialise(document.get(), xml::hadDeclaration(document.get()));
}

std::shared_ptr<const XmlShell> XmlShells::shared(const std::string& text) {
  auto& known = shells_[text];
  if (!known) known = std::make_shared<const XmlShell>(text);
  return known;
}

}  // namespace velra
