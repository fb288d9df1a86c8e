// SPDX-License-Identifier: GPL-3.0-or-later
#include "schema/SEColl.h"

#include <algorithm>
#include <utility>

#include "app/ApplicationModule.h"
#include "base/Arithmetic.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/UserInterface.h"
#include "platform/xml/XmlDocument.h"
#include "platform/xml/XmlWriter.h"
#include "schema/CloseList.h"
#include "schema/InstanceReader.h"
#include "schema/InstanceWriter.h"
#include "schema/ObjectFiles.h"
#include "schema/SchemaFile.h"

namespace velra {

namespace {

template <class Elements, class Matches>
auto* firstOf(Elements& elements, Matches matches) {
  const auto at = std::find_if(elements.begin(), elements.end(), matches);
  return at == elements.end() ? nullptr : &*at;
}

auto hasName(std::string_view name) {
  return [name](const SchemaElement& element) { return element.strName() == name; };
}

auto hasLowerName(std::string_view name) {
  return [name](const SchemaElement& element) { return element.strLowerName() == name; };
}

}  // namespace

SEColl::SEColl(ApplicationModule& app, DocumentSchemas& schemas, CloseLists& lists)
    : app_(app), schemas_(schemas), lists_(lists) {}

SEColl::~SEColl() = default;
SEColl::SEColl(SEColl&&) noexcept = default;

SchemaElement& SEColl::Add(tyType type, const std::string& strCloseList, const std::string& strName,
                           Value vContent, const std::string& strComment, bool bIgnore,
                           bool bReadOnly, bool bChanged, bool bValid, const std::string& sKey) {
  if (!sKey.empty() && std::find(keys_.begin(), keys_.end(), sKey) != keys_.end()) {
    raise(kDuplicateKey);
  }
  DeclarationRef declaration(FieldDeclaration{type, strCloseList, strName, toLower(strName),
                                              strComment, bReadOnly, bIgnore});
  SchemaElement& element = elements_.emplace_back(std::move(declaration));
  element.setVContent(std::move(vContent));
  element.setBChanged(bChanged);
  element.setBValid(bValid);
  keys_.resize(elements_.size());
  keys_.back() = sKey;
  return element;
}

SchemaElement& SEColl::Item(std::size_t position) {
  if (position < 1 || position > elements_.size()) raise(kSubscriptOutOfRange);
  return elements_[position - 1];
}

const SchemaElement& SEColl::Item(std::size_t position) const {
  if (position < 1 || position > elements_.size()) raise(kSubscriptOutOfRange);
  return elements_[position - 1];
}

SchemaElement& SEColl::Item(const std::string& key) {
  const auto at = std::find(keys_.begin(), keys_.end(), key);
  if (key.empty() || at == keys_.end()) raise(kInvalidArgument, key);
  return elements_[static_cast<std::size_t>(at - keys_.begin())];
}

void SEColl::Remove(std::size_t position) {
  Item(position);
  const auto offset = static_cast<std::ptrdiff_t>(position) - 1;
  elements_.erase(elements_.begin() + offset);
  if (keys_.size() >= position) keys_.erase(keys_.begin() + offset);
}

SchemaElement* SEColl::field(std::string_view strName) {
  return firstOf(elements_, hasName(strName));
}

const SchemaElement* SEColl::field(std::string_view strName) const {
  return firstOf(elements_, hasName(strName));
}

SchemaElement* SEColl::relationField(std::string_view strLowerName) {
  return firstOf(elements_, hasLowerName(strLowerName));
}

const SchemaElement* SEColl::relationField(std::string_view strLowerName) const {
  return firstOf(elements_, hasLowerName(strLowerName));
}

std::string SEColl::relationText(std::string_view strLowerName) const {
  const SchemaElement* field = relationField(strLowerName);
  const auto* text = field ? std::get_if<std::string>(&field->vContent()) : nullptr;
  return text ? *text : std::string();
}

const StringList* SEColl::relationList(std::string_view strLowerName) const {
  const SchemaElement* field = relationField(strLowerName);
  return field && field->bValid() ? asList(field->vContent()) : nullptr;
}

std::int16_t SEColl::iNumValid() const {
  return toInt16(static_cast<double>(
      std::count_if(elements_.begin(), elements_.end(),
                    [](const SchemaElement& element) { return element.bValid(); })));
}

std::int16_t SEColl::iNumValidAndReadable() const {
  return toInt16(static_cast<double>(
      std::count_if(elements_.begin(), elements_.end(), [](const SchemaElement& element) {
        return element.bValid() && element.bIsHumanReadable();
      })));
}

bool SEColl::bChanged() const {
  return std::any_of(elements_.begin(), elements_.end(),
                     [](const SchemaElement& element) { return element.bChanged(); });
}

std::string SEColl::strLoad(InstanceDocument& domDoc, const std::string& strPath,
                            std::shared_ptr<const SchemaFile>& domSchema, ObjectFiles& io,
                            const std::string& strClassName) {
  XmlDocument parsed;
  std::string message = io.strOpen(parsed, strPath);
  if (!message.empty()) return message;
  return strLoadParsed(domDoc, parsed, domSchema, strClassName);
}

std::string SEColl::strLoadParsed(InstanceDocument& domDoc, const XmlDocument& parsed,
                                  std::shared_ptr<const SchemaFile>& domSchema,
                                  const std::string& strClassName) {
  domDoc = InstanceDocument(schemas_.shared(parsed.shellText()));
  domSchema = schemas_.file(schemas_.strXSDPath());
  if (!domSchema) return {};
  const std::string message = strLoadType(*domSchema, strClassName);
  if (!message.empty())
    return domSchema->message().empty() ? app_.LoadResString(Message::SchemaLoadError) + message
                                        : message;
  return strReadInstance(app_, parsed, strClassName,
                         domSchema->classDeclaration(strClassName, lists_), elements_);
}

std::string SEColl::strLoadType(const SchemaFile& schema, const std::string& strType) {
  const ClassDeclaration& declaration = schema.classDeclaration(strType, lists_);
  if (!declaration.message.empty()) return declaration.message;
  elements_.reserve(elements_.size() + declaration.fields.size());
  for (const auto& field : declaration.fields) elements_.emplace_back(field);
  return {};
}

std::string SEColl::strInitAsNew(InstanceDocument& domDoc, const std::string&,
                                 std::shared_ptr<const SchemaFile>& domSchema,
                                 const std::string& strSchemaPath, const std::string&,
                                 const std::string& vClassName) {
  domDoc = InstanceDocument::create(vClassName);
  domSchema = schemas_.file(strSchemaPath);
  if (!domSchema) return app_.LoadResString(Message::NoSchemaReference);
  if (!domSchema->message().empty()) return domSchema->message();
  domDoc.setSchemaPath(strSchemaPath);
  return strLoadType(*domSchema, vClassName);
}

bool SEColl::bSave(const InstanceDocument& domDoc, const std::string& strPath, ObjectFiles& io) {
  if (!bChanged()) return true;
  std::string message;
  try {
    XmlWriter writer(domDoc.shell());
    WriteInstance(elements_, writer);
    message = io.strSave(writer, strPath);
  } catch (const RunTimeError& error) {
    // A value that no file can hold must not cost the rest of the person's work.
    message = error.description();
  }
  if (!message.empty()) {
    app_.ui.messageBox(message);
    return false;
  }
  clearChanged();
  return true;
}

bool SEColl::bSaveAs(const InstanceDocument& domDoc, const std::string& strPath, ObjectFiles& io) {
  try {
    XmlWriter writer(domDoc.shell());
    WriteInstance(elements_, writer);
    if (io.strSave(writer, strPath).empty()) clearChanged();
    return true;
  } catch (const RunTimeError& error) {
    app_.ui.messageBox(error.description());
    return false;
  }
}

void SEColl::clearChanged() {
  for (SchemaElement& element : elements_) element.setBChanged(false);
}

int iChildElements(const XmlNode& node) {
  int count = 0;
  for (XmlNode child = node.firstElement(); child; child = child.nextElement()) ++count;
  return count;
}

}  // namespace velra
