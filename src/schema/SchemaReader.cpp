// SPDX-License-Identifier: GPL-3.0-or-later
#include "schema/SchemaReader.h"

#include <utility>

#include "app/ApplicationModule.h"
#include "base/Text.h"
#include "platform/xml/XmlDocument.h"
#include "schema/CloseList.h"

namespace velra {

namespace {

// Nodes that are no elements have no name here.
std::string_view nameOf(const XmlNode& node) {
  return node.isElement() ? node.baseName() : std::string_view{};
}

XmlNode lastChildNamed(const XmlNode& parent, std::initializer_list<std::string_view> names) {
  XmlNode found;
  for (XmlNode child = parent.firstElement(); child; child = child.nextElement()) {
    for (const std::string_view name : names) {
      if (child.baseName() == name) found = child;
    }
  }
  return found;
}

XmlNode lastChild(const XmlNode& parent) {
  XmlNode last;
  for (XmlNode child = parent.firstChild(); child; child = child.nextSibling()) last = child;
  return last;
}

std::string attributeByBaseName(const XmlNode& node, std::string_view baseName) {
  std::string value;
  for (const XmlAttribute& attribute : node.attributes()) {
    if (attribute.baseName == baseName) value = attribute.value;
  }
  return value;
}

bool hasAttributeWithValue(const XmlNode& node, std::string_view baseName,
                           const std::string& value) {
  for (const XmlAttribute& attribute : node.attributes()) {
    if (attribute.baseName == baseName && attribute.value == value) return true;
  }
  return false;
}

}  // namespace

ClassDeclaration SchemaReader::strLoadType(const std::string& strType) {
  result_ = {};
  fields_.clear();
  result_.message = loadClass(strType);
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    result_.offsets[fields_[i]->strName].push_back(i);
  }
  result_.fields = std::make_shared<const FieldTable>(std::move(fields_));
  return std::move(result_);
}

XmlNode SchemaReader::topLevel(const std::string& name) const {
  for (XmlNode node = root_.firstElement(); node; node = node.nextElement()) {
    if (hasAttributeWithValue(node, "name", name)) return node;
  }
  return {};
}

std::string SchemaReader::loadClass(const std::string& strType) {
  const XmlNode declaration = topLevel(strType);
  if (!declaration) return app_.LoadResString(Message::TypeNotDefined) + strType;
  const XmlNode complexType = lastChildNamed(declaration, {"complexType"});
  if (!complexType) return strType + ":" + app_.LoadResString(Message::NeedsComplexType);
  XmlNode content = lastChildNamed(complexType, {"sequence", "all", "complexContent"});
  if (!content) return strType + ":" + app_.LoadResString(Message::NeedsContent);
  // Only what stands last decides on inheritance: a complexContent with anything behind it is taken
  // for a plain content model.
  if (nameOf(lastChild(complexType)) == "complexContent") {
    const XmlNode complexContent = content;
    std::string message = loadInherited(complexContent, strType, content);
    if (!message.empty()) return message;
  }
  if (iChildElements(content) == 0)
    return strType + ":" + app_.LoadResString(Message::NoChildElements);
  return strReadElements(content, strType);
}

std::string SchemaReader::loadInherited(const XmlNode& complexContent, const std::string& strType,
                                        XmlNode& body) {
  const XmlNode extension = lastChildNamed(complexContent, {"extension"});
  if (!extension) return strType + ":" + app_.LoadResString(Message::NeedsContent);
  std::string message = strLoadBaseType(attributeByBaseName(extension, "base"));
  if (!message.empty()) return message;
  body = lastChildNamed(extension, {"sequence", "all"});
  return body ? std::string() : strType + ":" + app_.LoadResString(Message::NeedsSequence);
}

std::string SchemaReader::strLoadBaseType(const std::string& strBase) {
  XmlNode base;
  for (XmlNode node = root_.firstElement(); node && !base; node = node.nextElement()) {
    const bool matches =
        node.baseName() == "complexType" && hasAttributeWithValue(node, "name", strBase);
    if (matches) base = node;
  }
  if (!base) return app_.LoadResString(Message::TypeNotDefined) + strBase;
  const XmlNode content = lastChildNamed(base, {"sequence", "all"});
  if (!content) return strBase + ":" + app_.LoadResString(Message::NeedsContent);
  if (iChildElements(content) == 0)
    return strBase + ":" + app_.LoadResString(Message::NoChildElements);
  return strReadElements(content, strBase);
}

std::string SchemaReader::strReadElements(const XmlNode& node, const std::string& strType) {
  const std::string prefix(node.prefix());
  for (XmlNode child = node.firstElement(); child; child = child.nextElement()) {
    FieldDeclaration field;
    readFlags(child, field);
    field.strName = attributeByBaseName(child, "name");
    field.strLowerName = toLower(field.strName);
    field.strComment = child.text();
    const std::string type = attributeByBaseName(child, "type");
    if (type.empty() || field.strName.empty()) {
      return strType + ":" + app_.LoadResString(Message::SchemaElementPrefix) +
             std::to_string(fields_.size() + 1) + app_.LoadResString(Message::NoTypeOrName);
    }
    if (field.strName.find("GUID") != std::string::npos) field.bReadOnly = true;
    mapType(prefix, type, field);
    fields_.push_back(std::make_shared<const FieldDeclaration>(std::move(field)));
  }
  return {};
}

void SchemaReader::readFlags(const XmlNode& declaration, FieldDeclaration& field) const {
  for (XmlNode note = declaration.firstElement(); note; note = note.nextElement()) {
    if (note.baseName() != "annotation") continue;
    for (XmlNode info = note.firstElement(); info; info = info.nextElement()) {
      if (info.baseName() != "appinfo") continue;
      const std::string word = toLower(info.text());
      if (word == "ignore") field.bIgnore = true;
      if (word == "readonly") field.bReadOnly = true;
    }
  }
}

void SchemaReader::mapType(const std::string& prefix, const std::string& type,
                           FieldDeclaration& field) {
  const std::pair<std::string, tyType> known[] = {
      {prefix + ":string", tyType::String}, {"SetOfStrings", tyType::SetOfStrings},
      {"SetOfGUIDs", tyType::SetOfGUIDs},   {prefix + ":integer", tyType::Integer},
      {prefix + ":date", tyType::Date},     {prefix + ":float", tyType::Real},
      {prefix + ":boolean", tyType::Bool},  {"ChunkType", tyType::ChunkTime},
      {"SetOfWords", tyType::WordList},
  };
  for (const auto& [name, mapped] : known) {
    if (type == name) {
      field.type = mapped;
      return;
    }
  }
  mapNamedType(type, field);
}

void SchemaReader::mapNamedType(const std::string& type, FieldDeclaration& field) {
  if (lists_.find(type) || clReadCloseList(type)) {
    field.type = tyType::CloseList;
    field.strCloseList = type;
  } else {
    field.type = tyType::Unknow;
    field.bIgnore = true;
  }
}

bool SchemaReader::clReadCloseList(const std::string& strName) {
  const XmlNode declaration = topLevel(strName);
  if (declaration.baseName() != "simpleType") return false;
  XmlNode restriction = declaration.firstElement();
  while (restriction && restriction.baseName() != "restriction") {
    restriction = restriction.nextElement();
  }
  CloseList list{strName, {}};
  for (XmlNode item = restriction.firstElement(); item; item = item.nextElement()) {
    if (item.baseName() != "enumeration") continue;
    for (const XmlAttribute& attribute : item.attributes()) {
      if (attribute.baseName == "value") list.colItems.push_back(attribute.value);
    }
  }
  if (list.colItems.empty()) return false;
  lists_.Add(std::move(list));
  return true;
}

}  // namespace velra
