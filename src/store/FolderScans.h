// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "schema/SchemaFile.h"
#include "store/FolderScan.h"
#include "store/KnownFolder.h"

namespace velra {

class ApplicationModule;

/// The folders that searches for objects of a document look through, and how long what is known of
/// them counts. Within an opening a folder is listed by the first search in it and taken for
/// unchanged from then on; the fields that were read ahead wait for the objects that will be made
/// of the files. A search outside of one is an opening of its own, which learns what has come, gone
/// and changed in a folder that an earlier one has read.
class FolderScans {
 public:
  explicit FolderScans(ApplicationModule& app) : app_(app) {}

  /// While an object of this kind lives, an opening is on. They nest, since every search is one of
  /// its own and most are parts of a larger one: the outermost counts.
  class Opening {
   public:
    explicit Opening(FolderScans& scans);
    ~Opening();
    Opening(const Opening&) = delete;
    Opening& operator=(const Opening&) = delete;

   private:
    FolderScans& scans_;
    std::unique_ptr<DocumentSchemas::Hold> hold_;
  };

  /// How many files a folder has that this opening will read, if it searches there.
  std::size_t filesIn(const std::string& folder);

  /// The files of a folder that a search for objects of the kinds pointing at an identifier has to
  /// look at, in the order of their names: those that point at it, and those that cannot be read.
  /// Good until the next call. kNoObject without an open document.
  std::vector<const ScannedFile*> relevant(const std::string& folder, Relation relation,
                                           const std::vector<ObjectKind>& kinds,
                                           const std::string& guid);

  /// The fields of a file that the opening has read already; nothing when it has to be read.
  std::optional<LoadedFields> takeFields(const std::string& guid, ObjectKind kind);

  /// False: pictures of key frames are not looked at while the files that name them are read.
  void setLooksAtPictures(bool looks) { looksAtPictures_ = looks; }
  /// What a picture was when the opening found it good; nothing when it has to be looked at.
  std::optional<FileStamp> goodPicture(const std::string& path) const;

  /// What the files of a folder refer to of which the opening has made no object.
  std::vector<std::string> relativesOfRest(const std::string& folder) const;

  /// Which folder could not be searched since the opening began, and why; "" when all could.
  const std::string& unlisted() const { return unlisted_; }

  /// True when the scans agree with themselves; for tests.
  bool checkConsistency() const;

 private:
  struct Folder {
    std::unique_ptr<FolderScan> scan;    // while an opening reads all of it, from its listing on
    std::unique_ptr<KnownFolder> known;  // after that
    unsigned lookedAtIn = 0;             // the opening that knows it as it is
  };

  Folder& folderAt(const std::string& path);
  void lookAt(Folder& folder);

  ApplicationModule& app_;
  std::map<std::string, Folder> folders_;  // by normal form
  unsigned generation_ = 0;  // of the current folder, which relative references follow
  unsigned opening_ = 0;     // number of the last one, from 1
  int depth_ = 0;            // of nested openings; 0 when none is on
  std::string unlisted_;
  PictureStamps pictures_;  // of the opening
  bool looksAtPictures_ = true;
};

}  // namespace velra
