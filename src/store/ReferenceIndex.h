#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "protocol/DescribedObject.h"

namespace velra {

class ObjectRegistry;

/// Who refers to whom, built for one operation over many objects: it saves asking every object of
/// the document about each of them. It may name an object that does not refer any more, never the
/// other way round; the object asked decides.
class ReferenceIndex {
 public:
  explicit ReferenceIndex(const ObjectRegistry& objects);

  /// Those with the identifier in a field, in order of registration.
  ObjectList holdersOf(const std::string& guid) const;

  /// Those with the identifier in a field or the object below or beside them.
  ObjectList holdersOf(const DescribedObject& object) const;

  /// Takes up the references that an object has now, besides those that it had.
  void update(const ObjectRef& holder);

  /// All that referred to one identifier refer to another one now.
  void renamed(const std::string& oldGUID, const std::string& newGUID);

 private:
  class Collector;

  using Holders = std::vector<std::size_t>;  // offsets into holders_, rising

  ObjectList listOf(Holders offsets) const;

  std::vector<ObjectRef> holders_;
  std::unordered_map<const DescribedObject*, std::size_t> offsets_;
  std::unordered_map<std::string, Holders> byGuid_;
  std::unordered_map<const DescribedObject*, Holders> byObject_;
};

}  // namespace velra
