// SPDX-License-Identifier: GPL-3.0-or-later
#include "schema/SEColl.h"

#include "app/ApplicationModule.h"
#include "base/Arithmetic.h"
#include "base/RunTimeError.h"
#include "platform/UserInterface.h"
#include "platform/xml/XmlDocument.h"
#include "platform/xml/XmlWriter.h"
#include "schema/FieldSearch.h"
#include "schema/InstanceReader.h"
#include "schema/InstanceWriter.h"
#include "schema/ObjectFiles.h"

namespace velra {

SEColl::SEColl(ApplicationModule& app, SharedParts& shared) : app_(app), shared_(shared) {}

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
  domDoc = InstanceDocument(shared_.shells.shared(parsed.shellText()));
  domSchema = shared_.schemas.file(shared_.schemas.strXSDPath());
  if (!domSchema) return {};
  const std::string message = strLoadType(*domSchema, strClassName);
  if (!message.empty())
    return domSchema->message().empty() ? app_.LoadResString(Message::SchemaLoadError) + message
                                        : message;
  try {
    std::string failure = strReadInstance(
        app_, parsed, strClassName,
        domSchema->classDeclaration(strClassName, shared_.collCloseListTypes), elements());
    packTexts();
    return failure;
  } catch (const RunTimeError&) {
    packTexts();  // some may be the document's
    throw;
  }
}

std::string SEColl::strLoadType(const SchemaFile& schema, const std::string& strType) {
  const ClassDeclaration& declaration =
      schema.classDeclaration(strType, shared_.collCloseListTypes);
  if (!declaration.message.empty()) return declaration.message;
  declare(declaration.fields);
  return {};
}

std::string SEColl::strInitAsNew(InstanceDocument& domDoc, const std::string&,
                                 std::shared_ptr<const SchemaFile>& domSchema,
                                 const std::string& strSchemaPath, const std::string&,
                                 const std::string& vClassName) {
  domDoc = InstanceDocument::create(vClassName);
  domSchema = shared_.schemas.file(strSchemaPath);
  if (!domSchema) return app_.LoadResString(Message::NoSchemaReference);
  if (!domSchema->message().empty()) return domSchema->message();
  domDoc.setSchemaPath(strSchemaPath);
  return strLoadType(*domSchema, vClassName);
}

std::string SEColl::fileBytes(const InstanceDocument& domDoc) const {
  XmlWriter writer(domDoc.shell());
  WriteInstance(elements(), writer);
  return writer.bytes();
}

bool SEColl::bSave(const InstanceDocument& domDoc, const std::string& strPath, ObjectFiles& io) {
  if (!bChanged()) return true;
  std::string message;
  try {
    XmlWriter writer(domDoc.shell());
    WriteInstance(elements(), writer);
    message = io.strSave(writer, strPath);
  } catch (const RunTimeError& error) {
    // A value that no file can hold must not cost the rest of the person's work.
    message = error.description();
  }
  if (!message.empty()) {
    app_.ui.messageBox(message);
    return false;
  }
  for (SchemaElement& field : *this) field.setBChanged(false);
  return true;
}

bool SEColl::bSaveAs(const InstanceDocument& domDoc, const std::string& strPath, ObjectFiles& io) {
  try {
    XmlWriter writer(domDoc.shell());
    WriteInstance(elements(), writer);
    if (io.strSave(writer, strPath).empty())
      for (SchemaElement& field : *this) field.setBChanged(false);
    return true;
  } catch (const RunTimeError& error) {
    app_.ui.messageBox(error.description());
    return false;
  }
}

std::int16_t SEColl::iSearchText(const std::string& strText, bool bMatchCase) const {
  return iHits(FieldSearch(strText, bMatchCase));
}

std::int16_t SEColl::iHits(const FieldSearch& search) const {
  long hits = 0;
  for (const SchemaElement& field : *this) {
    if (field.bValid()) hits += search.hitsIn(field);
  }
  return toInt16(static_cast<double>(hits));
}

}  // namespace velra
