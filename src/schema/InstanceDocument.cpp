// SPDX-License-Identifier: GPL-3.0-or-later
#include "schema/InstanceDocument.h"

#include "base/Paths.h"
#include "platform/xml/XmlShell.h"

namespace velra {

namespace {

// https://www.w3.org/TR/xmlschema-1/#xsi_schemaLocation
constexpr const char* kNamespace = "http://www.w3.org/2001/XMLSchema-instance";

// True for a root that has the attribute already, as the writer of shells puts it.
bool hasAttribute(const std::string& shell, const std::string& name, const std::string& value) {
  return shell.find(" " + name + "=\"" + value + "\"") != std::string::npos;
}

}  // namespace

InstanceDocument InstanceDocument::create(const std::string& rootName) {
  return InstanceDocument(std::make_shared<const XmlShell>(newShell(rootName, {})));
}

bool InstanceDocument::empty() const {
  return shell().text().empty();
}

const XmlShell& InstanceDocument::shell() const {
  static const XmlShell kNone{""};
  return shell_ ? *shell_ : kNone;
}

void InstanceDocument::setSchemaPath(const std::string& schemaPath) {
  const std::string name = strFileName(schemaPath);
  // In a comment the attributes would mean nothing.
  const std::string& text = shell().text();
  const bool there = text.find("<!--") == std::string::npos &&
                     hasAttribute(text, "xmlns:xsi", kNamespace) &&
                     hasAttribute(text, "xsi:noNamespaceSchemaLocation", name);
  if (there) return;
  shell_ = std::make_shared<const XmlShell>(withRootAttributes(
      text, {{"xmlns:xsi", kNamespace}, {"xsi:noNamespaceSchemaLocation", name}}));
}

}  // namespace velra
