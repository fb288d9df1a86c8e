// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <future>
#include <span>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "protocol/DescribedObject.h"
#include "store/KeySlots.h"

namespace velra {

class ObjectRegistry;

/// Who refers to whom among the objects of a registry: it saves asking every object about each that
/// is renamed or removed. It is built once; from then on only objects that may refer to more than
/// before are asked again. It may name an object that does not refer any more, never the other way
/// round: the object asked decides. So a reference that goes costs nothing here, and what is
/// referred to may be known by a number that another one shares.
class ReferenceIndex {
 public:
  explicit ReferenceIndex(const ObjectRegistry& objects) : objects_(objects) {}
  ~ReferenceIndex() = default;
  ReferenceIndex(const ReferenceIndex&) = delete;
  ReferenceIndex& operator=(const ReferenceIndex&) = delete;

  /// Does now what the first question would wait for: takes in what has changed, and everything
  /// when nothing has been asked yet. The latter may take a while: `meanwhile` is called then, many
  /// times in a tenth of a second, and must not change the objects.
  void bringUpToDate(const std::function<void()>& meanwhile = [] {});

  /// Begins to take in everything on a thread beside, for which the next question waits. Until then
  /// the objects may be read alone; the registry waits before it changes.
  void beginBeside();
  /// Waits for that thread; raises what it raised.
  void await() {
    if (beside_.valid()) beside_.get();
  }

  /// Those with the identifier in a field, in order of registration.
  ObjectList holdersOf(const std::string& guid);

  /// Those with the identifier in a field or the object below or beside them.
  ObjectList holdersOf(const DescribedObject& object) { return holdersOf(keysOf(object)); }

  using Key = std::uint64_t;  // of an object or an identifier
  /// Under what an object is referred to, as long as it has its identifier.
  struct Keys {
    Key identifier;
    Key object;
  };
  ObjectList holdersOf(const Keys& keys);
  /// The keys of objects that will be asked about soon. What is known under them is called from the
  /// memory together: who asks one by one waits for each.
  std::vector<Keys> callKeysOf(std::span<const ObjectRef> objects) const;

  // What the registry tells.
  void added(const DescribedObject& object) { noteChange(object); }
  void changed(const DescribedObject& object) { noteChange(object); }
  void removed(const DescribedObject& object) { changed_.erase(&object); }

 private:
  using Holders = std::vector<std::uint64_t>;  // numbers of the registry

  struct Reference {
    Key key;
    std::uint64_t holder;
    auto operator<=>(const Reference&) const = default;  // NOLINT(modernize-use-nullptr)
  };

 public:
  /// All that it knew, for who gives it back later; it is as if it were new.
  struct Contents {
    std::unordered_set<const DescribedObject*> changed;
    std::vector<Reference> settled;
    std::unordered_map<Key, Holders> fresh;
  };
  Contents takeAll();

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
  /// How many references are kept, those known twice counted twice; for tests.
  std::size_t size() const { return settled_.size() + freshCount_; }

 private:
  class Collector;

  static Key keyOf(const std::string& guid);
  static Key keyOf(const DescribedObject& object);
  static Keys keysOf(const DescribedObject& object);

  void noteChange(const DescribedObject& object);
  Contents forgetAll();
  void build(const std::function<void()>& meanwhile);
  void awaitWith(const std::function<void()>& meanwhile);
  std::vector<Reference> referencesOf(const DescribedObject& object) const;
  void add(Key key, std::uint64_t holder);
  void settle();
  /// Puts the settled references in order, each once; the first ones, so many, are already.
  void order(std::size_t inOrder);
  void appendHolders(Key key, Holders& holders) const;
  ObjectRef livingOf(std::uint64_t holder) const;
  ObjectList listOf(Holders holders) const;

  const ObjectRegistry& objects_;
  bool built_ = false;
  bool inBatch_ = false;
  unsigned folderGeneration_ = 0;
  std::unordered_set<const DescribedObject*> changed_;
  std::vector<Reference> settled_;  // in order
  KeySlots slots_;                  // of these
  // What came since; it joins the others before it grows large beside them.
  std::unordered_map<Key, Holders> fresh_;
  std::size_t freshCount_ = 0;
  std::future<void> beside_;  // last, since it ends before what it works on
};

}  // namespace velra
