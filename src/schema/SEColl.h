// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "schema/FieldList.h"
#include "schema/InstanceDocument.h"
#include "schema/SharedParts.h"

namespace velra {

class ApplicationModule;
class FieldSearch;
class ObjectFiles;
class SchemaFile;
class XmlDocument;

/// The fields of one object, in the schema's order, and their way from and to the object's file.
class SEColl : public FieldList {
 public:
  /// `shared` is the document's, and used while reading and making fields.
  SEColl(ApplicationModule& app, SharedParts& shared);

  /// The bytes of the object's file, as bSave would write them. kInvalidArgument for a value that
  /// XML cannot hold.
  std::string fileBytes(const InstanceDocument& domDoc) const;

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
  /// The same for a text that is looked for in many objects. Threads may ask at once.
  std::int16_t iHits(const FieldSearch& search) const;

  ApplicationModule& app() const { return app_; }
  const CloseLists& closeLists() const { return shared_.collCloseListTypes; }

 private:
  std::string strLoadType(const SchemaFile& schema, const std::string& strType);

  ApplicationModule& app_;
  SharedParts& shared_;
};

}  // namespace velra
