// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <string>

#include "protocol/DescribedObject.h"
#include "store/NumberSource.h"
#include "store/ObjectSequence.h"
#include "store/PathIndex.h"
#include "store/ReferenceIndex.h"

namespace velra {

/// The objects of a document in the order of their registration, found by identifier at once, by a
/// number for the normal form of its path. The answers are those of a walk over all objects that
/// makes two paths absolute for each comparison. An object is in one registry at most.
class ObjectRegistry : private ObjectListener {
 public:
  ObjectRegistry() = default;
  ObjectRegistry(const ObjectRegistry&) = delete;
  ObjectRegistry& operator=(const ObjectRegistry&) = delete;
  ~ObjectRegistry() override;

  /// Makes room for so many objects in all.
  void reserve(std::size_t count) { byKey_.reserve(count); }

  /// Appends an object; one that is there already stays where it is.
  void Add(const RegisteredRef& object);

  /// Takes an object out, by identity; false when it is not there.
  bool Remove(const RegisteredObject& object);

  std::size_t Count() const { return objects_.size(); }

  /// By position from 1; kSubscriptOutOfRange. A walk: the program's own ways take the object.
  RegisteredRef Item(std::size_t position) const;

  /// A copy of the list, for walks that may change it.
  RegisteredList all() const;
  /// The same without the movies and pictures.
  ObjectList described() const;

  /// In order of registration, each with a number that grows along it.
  const ObjectSequence& sequence() const { return objects_; }

  /// The first object whose identifier is the same path; null when there is none.
  RegisteredRef find(const std::string& guid);

  /// Whether an object has an identifier with this number; one that shares the number counts.
  bool isTaken(PathKey key);
  /// How often an identifier has gone out of use, by a removal or a new name.
  std::uint64_t departures() const { return departures_; }

  /// Its position from 1; 0 when there is none.
  std::size_t positionOf(const std::string& guid);

  /// Changes whenever an object comes to an identifier, be it new here or renamed.
  std::uint64_t arrivals();

  /// The number of an object in the sequence; 0 when it is not there.
  std::uint64_t numberOf(const RegisteredObject& object) const;

  /// Those that have something to save, in order of registration.
  RegisteredList changedObjects();

  /// Described objects with something to save that were written to since they were taken last: so
  /// many at most, in order of registration.
  ObjectList takeWritten(std::size_t most);
  /// As if all had been taken.
  void forgetWritten() { written_.clear(); }
  bool anyWritten() const { return !written_.empty(); }

  ReferenceIndex& references() { return references_; }

  /// The numbers of new files; it hears of every identifier that goes out of use.
  NumberSource& numbers() { return numbers_; }

  /// All that it held, for who gives it back later: the objects have left their document, and
  /// this is as if it were new.
  struct Contents {
    ObjectSequence objects;
    PathIndex byKey;
    std::unique_ptr<FolderWatch> watch;
    ReferenceIndex::Contents references;
    std::set<std::uint64_t> changed;
    std::set<std::uint64_t> written;
  };
  Contents takeAll();

  /// True when the index gives what the objects say of themselves; for tests.
  bool checkConsistency() const;

 private:
  void identifierChanged(const RegisteredObject& object) override;
  void referencesAdded(const DescribedObject& object) override;
  void markedChanged(const RegisteredObject& object) override;
  void rekeyAfterFolderChange();
  /// Gives the object the key of its identifier; the one that it had goes out of use.
  void rekey(RegisteredObject& object);
  void dropStaleKeys();
  void departed(PathKey key);
  RegisteredRef firstAt(const std::string& path) const;
  bool holds(const RegisteredObject& object) const;

  ObjectSequence objects_;
  // The number of an object that has gone stays a while: to take it out at once is to wait for
  // memory that no cache holds.
  PathIndex byKey_;
  std::set<std::uint64_t> changed_;  // every object with something to save, and perhaps others
  std::set<std::uint64_t> written_;  // those of them that takeWritten has not given since
  ReferenceIndex references_{*this};
  NumberSource numbers_{*this};
  std::uint64_t departures_ = 0;
  unsigned folderGeneration_ = 0;
  std::uint64_t arrivals_ = 0;
};

}  // namespace velra
