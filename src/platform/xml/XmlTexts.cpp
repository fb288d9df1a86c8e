// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/xml/XmlTexts.h"

#include "platform/xml/XmlLibrary.h"
#include "platform/xml/XmlText.h"

namespace velra {

namespace {

void replaceText(xmlNode& element, const ReplaceText& replace) {
  const std::string before = xml::textOf(element.children);
  const std::string after = replace(xml::behindColon(xml::viewOf(element.name)), before);
  if (after == before) return;
  xmlNodeSetContent(&element, nullptr);
  xmlNodeAddContent(&element, xml::bytesOf(after));  // plain text: it is escaped when written
}

// The parser refuses a depth that this could not go down to.
void replaceTexts(xmlNode& element, const ReplaceText& replace) {
  bool holdsElements = false;
  for (xmlNode* child = element.children; child; child = child->next) {
    if (child->type != XML_ELEMENT_NODE) continue;
    holdsElements = true;
    replaceTexts(*child, replace);
  }
  if (!holdsElements) replaceText(element, replace);
}

}  // namespace

RewrittenXml withTextsReplaced(std::string_view bytes, const std::string& path,
                               const ReplaceText& replace) {
  RewrittenXml result;
  const xml::Document document = xml::parse(bytes, path, result.reason);
  if (!document) return result;
  replaceTexts(*xmlDocGetRootElement(document.get()), replace);
  result.bytes = xml::serialise(document.get(), xml::hadDeclaration(document.get()));
  return result;
}

}  // namespace velra
