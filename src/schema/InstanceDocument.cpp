// SPDX-License-Identifier: GPL-3.0-or-later
#include "schema/InstanceDocument.h"

#include <string_view>

#include "base/Paths.h"
#include "platform/xml/XmlShell.h"

namespace velra {

namespace {

// https://www.w3.org/TR/xmlschema-1/#xsi_schemaLocation
constexpr std::string_view kDeclared = " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"";
constexpr std::string_view kNamespace =
    kDeclared.substr(kDeclared.find('"') + 1, kDeclared.rfind('"') - kDeclared.find('"') - 1);
constexpr std::string_view kLocation = " xsi:noNamespaceSchemaLocation=\"";

// True for a root that has both attributes already, as the writer of shells puts them. A Save As
// asks for each object.
bool namesSchema(std::string_view shell, std::string_view name) {
  const std::size_t at = shell.find(kLocation);
  if (at == std::string_view::npos || shell.find(kDeclared) == std::string_view::npos) return false;
  const std::string_view value = shell.substr(at + kLocation.size());
  // In a comment the attributes would mean nothing.
  return value.starts_with(name) && value.substr(name.size()).starts_with('"') &&
         shell.find("<!--") == std::string_view::npos;
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
  const std::string& text = shell().text();
  if (namesSchema(text, name)) return;
  shell_ = std::make_shared<const XmlShell>(withRootAttributes(
      text, {{"xmlns:xsi", std::string(kNamespace)}, {"xsi:noNamespaceSchemaLocation", name}}));
}

}  // namespace velra
