// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <unordered_set>

#include "protocol/ObjectKind.h"
#include "store/NumberSource.h"

namespace velra {

class ApplicationModule;
class ObjectRegistry;

/// The names of new files of a document. A name that was given is a promise until this program has
/// written a file under it; what lies there all the same before is another program's, and is
/// neither replaced nor deleted.
class NewFileNames {
 public:
  explicit NewFileNames(const ApplicationModule& app) : app_(app) {}

  /// The path of a new file for a kind of object and an extension, without the point, in the layout
  /// of the document. The data folder is made when it is missing; a failure of that comes back in
  /// place of the path.
  std::string give(ObjectRegistry& objects, ObjectKind kind, const std::string& extension,
                   const std::string& strAVDocPathName);

  bool isPromised(const std::string& path) const { return promised_.contains(path); }
  /// Makes a name a promise again, after a save that was taken back.
  void promise(const std::string& path) { promised_.insert(path); }

  /// To be told of what becomes of files: one was written, came to or left an absolute path.
  void written(const std::string& path) { promised_.erase(path); }
  void came(const std::string& path);
  void went(const std::string& path);
  /// A name is not needed any more, and its file has gone if it was this program's.
  void withdrawn(const std::string& path);

  /// While an object of this kind lives, one listing of the document's data folder serves all new
  /// names. The process does not change its folder meanwhile.
  class Listing {
   public:
    Listing(NewFileNames& names, ObjectRegistry& objects, const std::string& strAVDocPathName);
    ~Listing();
    Listing(const Listing&) = delete;
    Listing& operator=(const Listing&) = delete;

   private:
    friend class NewFileNames;

    NewFileNames& names_;
    NumberSource::Listing listing_;
    std::string document_;
    std::map<ObjectKind, std::string> prefixes_;  // of the names of this document
  };

 private:
  std::string prefixFor(ObjectKind kind, const std::string& strAVDocPathName) const;

  const ApplicationModule& app_;
  std::unordered_set<std::string> promised_;
  Listing* listing_ = nullptr;  // the one that stands now
};

}  // namespace velra
