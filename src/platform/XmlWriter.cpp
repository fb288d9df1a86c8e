#include "platform/XmlWriter.h"

#include <cstdint>
#include <cstdio>
#include <new>
#include <optional>

#include "base/RunTimeError.h"
#include "platform/XmlLibrary.h"

namespace velra {
namespace {

/// The length of the UTF-8 sequence at the front and its code point; nothing when it is malformed.
struct CodePoint {
  std::size_t length;
  std::uint32_t value;
};
std::optional<CodePoint> firstCodePoint(std::string_view text) {
  int length = static_cast<int>(text.size());
  const int value = xmlGetUTF8Char(reinterpret_cast<const xmlChar*>(text.data()), &length);
  if (value < 0) return std::nullopt;
  return CodePoint{static_cast<std::size_t>(length), static_cast<std::uint32_t>(value)};
}

bool isXmlCharacter(std::uint32_t value) {
  if (value < 0x20) return value == 0x9 || value == 0xA || value == 0xD;
  return value <= 0xD7FF || (value >= 0xE000 && value <= 0xFFFD) ||
         (value >= 0x10000 && value <= 0x10FFFF);
}

std::string characterName(std::uint32_t value, const char* format) {
  char buffer[16];
  std::snprintf(buffer, sizeof buffer, format, value);
  return buffer;
}

/// A text that XML cannot hold would make a file that nobody can open again.
void checkText(const std::string& text, const std::string& owner) {
  std::string_view rest = text;
  while (!rest.empty()) {
    const auto byte = static_cast<unsigned char>(rest.front());
    if (byte >= 0x20 && byte < 0x80) {
      rest.remove_prefix(1);
      continue;
    }
    const auto point = byte < 0x80 ? CodePoint{1, byte} : firstCodePoint(rest);
    if (!point) {
      raise(kInvalidArgument, owner + ": the byte " + characterName(byte, "%02X") + " is no text");
    }
    if (!isXmlCharacter(point->value)) {
      raise(kInvalidArgument,
            owner + ": a file cannot hold the character " + characterName(point->value, "U+%04X"));
    }
    rest.remove_prefix(point->length);
  }
}

void checkName(const std::string& name) {
  const bool whole = name.find('\0') == std::string::npos;
  if (!whole || xmlValidateName(xml::bytesOf(name), 0) != 0) {
    raise(kInvalidArgument, "\"" + name + "\" is no name of an element or attribute");
  }
}

xmlNode* newElement(xmlDoc* document, const std::string& name) {
  checkName(name);
  xmlNode* node = xmlNewDocRawNode(document, nullptr, xml::bytesOf(name), nullptr);
  if (!node) throw std::bad_alloc();
  return node;
}

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
  checkName(name);
  checkText(value, name);
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

void setAttributes(xmlNode* node, const XmlWriter::Attributes& attributes) {
  for (const auto& [name, value] : attributes) setAttribute(node, name, value);
}

xml::Document documentOf(const std::string& shell) {
  std::string reason;
  xml::Document document = xml::parseShell(shell, reason);
  if (!document) raise(kInvalidArgument, "the shell of a document: " + reason);
  return document;
}

}  // namespace

void XmlWriter::Free::operator()(_xmlDoc* document) const {
  xmlFreeDoc(document);
}

XmlWriter::XmlWriter(const std::string& shell) : document_(documentOf(shell).release()) {}

XmlWriter::~XmlWriter() = default;

void XmlWriter::addElement(const std::string& name, const std::string& text,
                           const Attributes& attributes) {
  element_ = append(xmlDocGetRootElement(document_.get()), name, text, attributes);
}

void XmlWriter::addChild(const std::string& name, const std::string& text,
                         const Attributes& attributes) {
  if (!element_) raise(kNoObject);
  append(element_, name, text, attributes);
}

_xmlNode* XmlWriter::append(_xmlNode* parent, const std::string& name, const std::string& text,
                            const Attributes& attributes) {
  checkText(text, name);
  xmlNode* node = xmlAddChild(parent, newElement(document_.get(), name));
  if (!text.empty()) {
    xmlAddChild(
        node, xmlNewDocTextLen(document_.get(), xml::bytesOf(text), static_cast<int>(text.size())));
  }
  setAttributes(node, attributes);
  return node;
}

std::string XmlWriter::bytes() const {
  const bool ownInstruction = document_->children->type == XML_PI_NODE;
  return xml::serialise(document_.get(), xml::hadDeclaration(document_.get()) || !ownInstruction);
}

std::string newShell(const std::string& rootName, const XmlWriter::Attributes& attributes) {
  xml::initXml();
  const xml::Document document(xmlNewDoc(nullptr));
  if (!document) throw std::bad_alloc();
  xmlDocSetRootElement(document.get(), newElement(document.get(), rootName));
  setAttributes(xmlDocGetRootElement(document.get()), attributes);
  return xml::serialise(document.get(), false);
}

std::string withRootAttributes(const std::string& shell, const XmlWriter::Attributes& attributes) {
  const xml::Document document = documentOf(shell);
  setAttributes(xmlDocGetRootElement(document.get()), attributes);
  return xml::serialise(document.get(), xml::hadDeclaration(document.get()));
}

}  // namespace velra
