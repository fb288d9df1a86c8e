// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "schema/InstanceDocument.h"
#include "schema/SchemaElement.h"

namespace velra {

class ApplicationModule;
class CloseLists;
class DocumentSchemas;
class ObjectFiles;
class SchemaFile;
class XmlDocument;

/// The fields of one object, in the schema's order, and their way from and to the object's file.
/// Positions count from 1.
class SEColl {
 public:
  /// `schemas` and `lists` are the document's; they are used while reading and making fields.
  SEColl(ApplicationModule& app, DocumentSchemas& schemas, CloseLists& lists);
  ~SEColl();
  SEColl(SEColl&&) noexcept;
  SEColl(const SEColl&) = delete;
  SEColl& operator=(const SEColl&) = delete;
  SEColl& operator=(SEColl&&) = delete;

  SchemaElement& Add(tyType type, const std::string& strCloseList, const std::string& strName,
                     Value vContent, const std::string& strComment, bool bIgnore, bool bReadOnly,
                     bool bChanged, bool bValid, const std::string& sKey = {});

  SchemaElement& Item(std::size_t position);
  const SchemaElement& Item(std::size_t position) const;
  SchemaElement& Item(const std::string& key);
  std::size_t Count() const { return elements_.size(); }
  void Remove(std::size_t position);

  auto begin() { return elements_.begin(); }
  auto end() { return elements_.end(); }
  auto begin() const { return elements_.begin(); }
  auto end() const { return elements_.end(); }

  /// The first field of exactly this name, or of this lower-cased name; null when there is none.
  SchemaElement* field(std::string_view strName);
  const SchemaElement* field(std::string_view strName) const;
  SchemaElement* relationField(std::string_view strLowerName);
  const SchemaElement* relationField(std::string_view strLowerName) const;
  /// The text of a relation field, assigned or not; "" for a field that is absent or holds no text.
  std::string relationText(std::string_view strLowerName) const;
  /// The set in a relation field; null when it is absent or not assigned.
  const StringList* relationList(std::string_view strLowerName) const;

  std::int16_t iNumValid() const;
  std::int16_t iNumValidAndReadable() const;
  bool bChanged() const;

  /// Reads an object's file and the schema of its class. A message, or "". With no schema in the
  /// settings the object stands with no fields, and that is no failure.
  std::string strLoad(InstanceDocument& domDoc, const std::string& strPath,
                      std::shared_ptr<const SchemaFile>& domSchema, ObjectFiles& io,
                      const std::string& strClassName);

  /// The same from an object's file that has been parsed already; for readers of whole folders.
  std::string strLoadParsed(InstanceDocument& domDoc, const XmlDocument& parsed,
                            std::shared_ptr<const SchemaFile>& domSchema,
                            const std::string& strClassName);

  /// Makes the fields of a new object, all unassigned, and its document. A message, or "".
  std::string strInitAsNew(InstanceDocument& domDoc, const std::string& strGUID,
                           std::shared_ptr<const SchemaFile>& domSchema,
                           const std::string& strSchemaPath, const std::string& prefix,
                           const std::string& vClassName);

  /// Writes the object's file if a field has changed. A failure is shown in a box and gives false;
  /// the fields then stay changed.
  bool bSave(const InstanceDocument& domDoc, const std::string& strPath, ObjectFiles& io);

  /// Writes in any case. A message of the store shows nothing and gives true, with the flags as
  /// they were; only a run-time error in the save is shown and gives false.
  bool bSaveAs(const InstanceDocument& domDoc, const std::string& strPath, ObjectFiles& io);

  /// How many values hold the text: string fields, members of sets, words.
  std::int16_t iSearchText(const std::string& strText, bool bMatchCase) const;

  ApplicationModule& app() const { return app_; }
  CloseLists& closeLists() const { return lists_; }

 private:
  std::string strLoadType(const SchemaFile& schema, const std::string& strType);
  void clearChanged();

  ApplicationModule& app_;
  DocumentSchemas& schemas_;
  CloseLists& lists_;
  std::vector<SchemaElement> elements_;
  std::vector<std::string> keys_;  // empty while no element has a key
};

/// How many element children a node has.
class XmlNode;
int iChildElements(const XmlNode& node);

}  // namespace velra
