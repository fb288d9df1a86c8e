// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "protocol/DescribedObject.h"
#include "schema/SchemaElement.h"

namespace velra {

class IOManager;
class MediaObject;

/// What a save changes in objects, kept so that one that fails leaves them as they were: the names
/// of objects and pictures, the references to them, and what counts as changed.
class SavePoint {
 public:
  /// Of many objects that takes a while: `meanwhile` is called then, many times in a tenth of a
  /// second.
  explicit SavePoint(
      const RegisteredList& objects, const std::function<void()>& meanwhile = [] {});

  /// To be told of each new name, and of each picture that was brought to another place.
  void named(const std::string& newGUID) { newNames_.push_back(newGUID); }
  void relocated(const std::shared_ptr<MediaObject>& picture, const std::string& from,
                 const std::string& to);

  /// Puts all back. The files that were made under the new names go, unless they are to stay
  /// because a document on the disk names them.
  void restore(IOManager& io, bool filesStay);
  /// For a save that gave no names.
  void restoreFlags() { restoreFields(); }

 private:
  struct Field {
    SchemaElement* field;
    bool changed;
    bool holdsNames;
    Value content;        // of a field that holds names
    std::string picture;  // in its span, which is shared
  };
  struct Relocation {
    std::shared_ptr<MediaObject> picture;
    std::string from;
    std::string to;
  };

  // Whether fields of a class hold names, by their places; a field is known by where its name
  // stands, which all objects of the class share.
  struct FieldRule {
    const std::string* name;
    bool holdsNames;
  };
  using FieldRules = std::map<ObjectKind, std::vector<FieldRule>>;

  void keepFields(const DescribedObject& object, FieldRules& known);
  bool bringBack(IOManager& io, const Relocation& one, bool filesStay);
  void restoreFields();

  RegisteredList objects_;  // they hold the fields
  std::vector<Field> fields_;
  std::vector<std::shared_ptr<MediaObject>> newPictures_;
  std::vector<std::string> promised_;  // names under which nothing was written before
  std::vector<std::string> newNames_;
  std::vector<Relocation> relocations_;
};

}  // namespace velra
