// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace velra {

class ObjectRegistry;

/// The files of removed objects. They stay on the disk until the document has been saved without
/// them and closed, so that a session that ends otherwise loses nothing.
///
/// Each save lists once more all that was removed since the opening. That is thousands, and so the
/// list is stretches of places in a row of identifiers that only grows.
class RemovedFiles {
 public:
  /// The list, in the order in which it was added to; an identifier may stand here many times.
  std::vector<std::string> identifiers() const;
  /// How many these are.
  std::size_t size() const;

  void add(const std::string& guid);

  /// Notes what a document has removed so far; it has to be what was noted before, and more. Only
  /// `addNoted`, when a save has been done, lists it.
  void note(const std::deque<std::string>& removed);
  void addNoted();

  /// Takes the identifiers of living objects out again.
  void keepFilesOf(ObjectRegistry& objects);

  /// All that was ever added or noted, and whether a living object needs the file of one.
  const std::deque<std::string>& all() const { return all_; }
  const std::vector<bool>& needed(ObjectRegistry& objects);

  /// Empties the list through a function that deletes one file and gives the reason when it cannot.
  /// The identifiers that could not be deleted and the last reason, or "".
  std::string deleteAll(const std::function<std::string(const std::string&)>& deleteFile);

 private:
  struct Stretch {
    std::size_t begin;
    std::size_t end;
  };

  static void append(std::vector<Stretch>& stretches, Stretch more);

  std::deque<std::string> all_;
  std::vector<Stretch> noted_;
  std::size_t notedCount_ = 0;
  std::vector<Stretch> list_;
  // By place, as far as it has been looked up since objects came last.
  std::vector<bool> needed_;
  bool anyNeeded_ = false;
  std::uint64_t arrivals_ = 0;
};

}  // namespace velra
