// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "app/Message.h"
#include "protocol/DescribedObject.h"

namespace velra {

class ApplicationModule;
class SchemaElement;
struct ClassRules;

/// The fields of an expression that hold the identifiers of other objects. They are compared as
/// paths.
class ReferenceFields {
 public:
  ReferenceFields(SEColl& secol, const ClassRules& rules, std::shared_ptr<IOManager> io)
      : secol_(secol), rules_(rules), io_(std::move(io)) {}

  static bool holds(const SchemaElement& field, const ClassRules& rules);

  void setPartOf(const std::string& guid);
  /// Only when it holds this identifier.
  void clearPartOf(const std::string& guid);
  /// "" takes the field's value away.
  void setFollowedBy(const std::string& guid);

  /// The text of a field that must be of a type, "" when it is not assigned; a field of another
  /// type shows the message and counts as empty.
  std::string typedText(const std::string& lowerName, const ApplicationModule& app,
                        Message message) const;

  void visit(ReferenceVisitor& visitor) const;
  void rename(const std::string& oldGUID, const std::string& newGUID);

 private:
  void renameManifestations(const std::string& oldGUID, const std::string& newGUID);

  SEColl& secol_;
  const ClassRules& rules_;
  const std::shared_ptr<IOManager> io_;
};

}  // namespace velra
