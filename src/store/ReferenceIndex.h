#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "protocol/DescribedObject.h"

namespace velra {

class ObjectRegistry;

/// Who refers to whom among the objects of a registry: it saves asking every object about each that
/// is renamed or removed. It is built at the first question; from then on only objects that may
/// refer to more than before are asked again. It may name an object that does not refer any more,
/// never the other way round: the object asked decides. So a reference that goes costs nothing
/// here.
class ReferenceIndex {
 public:
  explicit ReferenceIndex(const ObjectRegistry& objects) : objects_(objects) {}
  ReferenceIndex(const ReferenceIndex&) = delete;
  ReferenceIndex& operator=(const ReferenceIndex&) = delete;

  /// Those with the identifier in a field, in order of registration.
  ObjectList holdersOf(const std::string& guid);

  /// Those with the identifier in a field or the object below or beside them.
  ObjectList holdersOf(const DescribedObject& object);

  // What the registry tells.
  void added(const DescribedObject& object) { noteChange(object); }
  void changed(const DescribedObject& object) { noteChange(object); }
  void removed(const DescribedObject& object) { changed_.erase(&object); }
  void clear();

  /// While an object of this kind lives, no changed object is asked again: one operation over many
  /// objects changes long lists once for each of them. It tells of its renames and removals itself.
  class Batch {
   public:
    explicit Batch(ReferenceIndex& index);
    ~Batch() { index_.inBatch_ = false; }
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;

    /// All that referred to one identifier refer to another one now.
    void renamed(const std::string& oldGUID, const std::string& newGUID);
    /// All that were followed by a segment are followed by the next one now.
    void removed(const DescribedObject& object, const DescribedObject& next);

   private:
    ReferenceIndex& index_;
  };

  /// True when every reference that an object holds is known; for tests.
  bool checkConsistency();

 private:
  class Collector;
  class Checker;

  using Holders = std::vector<std::uint64_t>;  // numbers of the registry

  void noteChange(const DescribedObject& object);
  void bringUpToDate();
  void collect(const DescribedObject& object);
  Holders* known(const std::string& guid);
  Holders* known(const DescribedObject& object);
  /// Brings the numbers in order, drops those of objects that have gone, and gives the others.
  ObjectList listOf(Holders& holders) const;

  const ObjectRegistry& objects_;
  bool built_ = false;
  bool inBatch_ = false;
  unsigned folderGeneration_ = 0;
  std::unordered_set<const DescribedObject*> changed_;
  std::unordered_map<std::string, Holders> byGuid_;  // by the normal form of the identifier
  std::unordered_map<const DescribedObject*, Holders> byObject_;
};

}  // namespace velra
