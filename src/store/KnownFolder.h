// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/files/FolderWatch.h"
#include "protocol/DescribedObject.h"
#include "protocol/ObjectKind.h"
#include "store/PathKey.h"
#include "store/ScannedFile.h"
#include "store/ToldFiles.h"

namespace velra {

class ApplicationModule;
class ObjectRegistry;
class OpenDocument;

/// That a file points at something; both are numbers that others may share.
struct KnownRelation {
  std::uint64_t key;   // `relationKey`
  std::uint64_t file;  // of the list that it stands in
  bool operator<(const KnownRelation& other) const {
    return key != other.key ? key < other.key : file < other.file;
  }
};

/// The XML files of a folder whose objects are loaded, for the searches after an opening. Loaded
/// objects answer through the index of references; of the other files is known what they said when
/// they were read last, and those alone are looked at that may have changed since. Where the folder
/// cannot be watched it is listed for each search, and all that are not loaded are looked at.
class KnownFolder {
 public:
  /// What an opening has read, in the order of the listing; the files of the relations, which are
  /// sorted, are offsets in it. The folder has been listed since the watch began.
  struct Start {
    std::vector<ScannedFile>& files;  // gives what is kept of it; the rest is the caller's to end
    std::vector<KnownRelation> related;
    std::string reason;
  };
  KnownFolder(std::string folder, std::unique_ptr<FolderWatch> watch, Start start);

  /// Learns what has happened in the folder and which objects have gone, and reads what needs it.
  /// The good pictures of that join `pictures`, unless it is null.
  void bringUpToDate(ApplicationModule& app, OpenDocument& document, PictureStamps* pictures);

  /// Why the folder could not be listed; "" when it could.
  const std::string& reason() const { return reason_; }

  /// As `FolderScan::relevant`, of the folder as it was brought up to date. Of a file whose object
  /// is loaded it has the name alone. The list is good until the next call of anything here.
  std::vector<const ScannedFile*> relevant(ApplicationModule& app, OpenDocument& document,
                                           Relation relation, const std::vector<ObjectKind>& kinds,
                                           const std::string& guid);

  /// Hands over the fields that were read for a file; nothing when there are none.
  std::optional<LoadedFields> takeFields(const std::string& name, ObjectKind kind) {
    return told_.takeFields(name, kind);
  }
  void endSearch() { told_.dropFields(); }

  /// True when what is kept agrees with itself; for tests.
  bool checkConsistency() const;

 private:
  // The text of the name stands with those of the others.
  struct File {
    PathKey key = 0;
    FileStamp stamp;  // when it was read; of no file when nothing is known of it
    std::uint32_t name = 0;
    bool loaded = false;     // an object answers for it
    bool unchanged = false;  // since it was read, as far as was told
    bool told = false;       // what it said is in `told_`, else its relations are in `related_`
  };
  using Files = std::vector<File>;

  const char* nameOf(const File& file) const { return names_.c_str() + file.name; }
  File added(const std::string& name);
  Files::iterator find(const std::string& name);
  void takeNews(const std::set<std::string>& names);
  void listAnew();
  void askWhoIsLoaded(ObjectRegistry& objects);
  void readChanged(ApplicationModule& app, OpenDocument& document, PictureStamps* pictures);
  void note(File& file, ScannedFile read);
  void dropVanished();
  bool markUntold(std::uint64_t key);
  void addHolders(OpenDocument& document, const std::vector<ObjectKind>& kinds,
                  const std::string& guid, std::vector<const ScannedFile*>& found);

  const std::string folder_;
  std::string reason_;
  std::unique_ptr<FolderWatch> watch_;  // null where it could not tell all
  std::string names_;                   // with a zero behind each
  Files files_;                         // in the order of the names
  std::vector<KnownRelation>
      related_;  // sorted by the numbers of what they point at; files are keys
  ToldFiles told_;
  std::uint64_t departures_ = 0;      // of the registry when it was asked last
  std::vector<ScannedFile> holders_;  // of the last answer
};

}  // namespace velra
