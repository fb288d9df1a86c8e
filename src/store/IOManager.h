// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "protocol/DescribedObject.h"
#include "protocol/Expression.h"
#include "schema/ObjectFiles.h"
#include "store/ExpressionFinder.h"
#include "store/FilesBehind.h"
#include "store/FolderScans.h"
#include "store/GuardedFiles.h"
#include "store/NewFileNames.h"
#include "store/PlannedRemovals.h"
#include "store/RemovedFiles.h"
#include "store/UnflushedFiles.h"

namespace velra {

class ApplicationModule;
class DocumentRescue;
class ObjectRegistry;

/// Writes and deletes object files and reads them; `FolderScans` read those of a search. One
/// instance belongs to one open document and is shared by all of its objects; its end deletes the
/// files of removed objects. A server was foreseen as a second back end and is not there: with
/// `bFileSystem` false the operations do nothing.
class IOManager : public ObjectFiles, public std::enable_shared_from_this<IOManager> {
 public:
  explicit IOManager(ApplicationModule& app);
  IOManager(const IOManager&) = delete;
  IOManager& operator=(const IOManager&) = delete;
  ~IOManager() override;

  bool bFileSystem() const { return bFileSystem_; }
  void setBFileSystem(bool fileSystem) { bFileSystem_ = fileSystem; }
  /// True: an opening takes the objects as their files are. It chooses no key frames, makes none of
  /// the pictures that they lack, and does not ask for those that they have.
  bool bReadsOnly() const { return bReadsOnly_; }
  void setBReadsOnly(bool readsOnly) {
    bReadsOnly_ = readsOnly;
    scans_.setLooksAtPictures(!readsOnly);
  }
  bool bConnectToDM() const { return false; }
  /// Address of a server; nothing sets it.
  std::string strHTTP() const { return {}; }

  /// The path of a new object's file in the layout of the document; the data folder is made when it
  /// is missing. A failure of that comes back in place of the path.
  std::string strCreateGUID(ObjectRegistry& collObjects, const DescribedObject& objNew,
                            const std::string& strAVDocPathName);
  /// The same for a file of a class and an extension, without the point.
  std::string strCreateGUID(ObjectRegistry& collObjects, ObjectKind kind,
                            const std::string& extension, const std::string& strAVDocPathName);

  /// Makes the data folder of a document when it is missing; the message that tells why not, or "".
  /// Whoever wants a name asks this first, or takes that message for a name.
  std::string strMakeDataFolder(const std::string& strAVDocPathName) const;

  /// The names that it gives, and which of them are still promises.
  NewFileNames& names() { return names_; }
  /// Takes a promised name back. What this manager has written under it goes; another program's
  /// file stays.
  void withdraw(const std::string& strGUID);

  std::string strOpen(XmlDocument& objDOMDocument, const std::string& strGUID) override;
  std::string strSave(const XmlWriter& objDOMDocument, const std::string& strGUID) override;

  /// Why the last strSave failed; "" when it did not.
  const std::string& strSaveFailure() const { return saveFailure_; }

  /// From now on files come under promised names by threads of their own, so that what fails is
  /// told by a later strSave or by `filesMade`, which waits for all of them. What came is known
  /// here behind `noteFilesMade`, which touches nothing that a flush does. To be called in turn.
  void makeFilesBehind(HiddenFolder hidden);
  /// Has what was made so far brought to the disk of a folder meanwhile.
  void bringToDiskBehind(const std::string& folder) { behind_->bringToDisk(folder, strStatus()); }
  FilesBehind::Outcome filesMade() { return behind_->finish(); }
  void noteFilesMade();
  /// The sentence for a person; "" for no failure.
  std::string strSentence(const FilesBehind::Failure& failure) const;

  /// Told of an object that is left out at the opening. The box for it may not name the file.
  void noteLeftOut(const std::string& guid, const std::string& message);
  /// What was told first of an unnamed file, with its name; "" for nothing.
  const std::string& strLeftOut() const { return leftOut_; }

  /// Brings what was saved since the last call to the disk. The failure's description, or "".
  std::string strFlush() { return unflushed_.strFlush(); }

  /// Raise a run-time error on failure.
  void MoveObject(const std::string& source, const std::string& destination);
  void CopyObject(const std::string& source, const std::string& destination);

  /// Identifiers of the files to delete at the next strSync.
  std::vector<std::string> colGUIDToRemove() const { return removed_.identifiers(); }
  void RemoveGUID(const std::string& strGUIDToRemove) { removed_.add(strGUIDToRemove); }
  /// The same list, and what saves have planned of it.
  RemovedFiles& removed() { return removed_; }
  PlannedRemovals& plannedRemovals() { return planned_; }
  /// Deletes the files of removed objects. The identifiers that could not be deleted and the last
  /// reason, or "".
  std::string strSync();

  /// Carries saves of the document to their end that were cut off, before it is read. What is to be
  /// told of them, or of another program that has it open; "" for nothing.
  std::string strFinishCutOffSaves(const std::string& strAVDocPathName);
  /// From now on the files are those of this document, and the store knows of its opening.
  void joinStore(const std::string& strAVDocPathName);
  /// What may be done to files, and what is known of them.
  GuardedFiles& guard() { return guard_; }
  /// Null when nothing is kept.
  DocumentRescue* rescue() const { return rescue_.get(); }

  /// Equality of identifiers: the same absolute path.
  bool bGUIDComp(const std::string& strGUID1, const std::string& strGUID2) const;

  /// The class of a file: the name of its root. A file that cannot be parsed is reported in a box
  /// and has none.
  std::string strWhatIs(const std::string& strGUID);

  /// Third piece of a text of the form "urn:talvo:class"; kSubscriptOutOfRange for fewer pieces.
  static std::string ExtractTypeFromURN(const std::string& strURN);

  /// What the searches know of the document's folders.
  FolderScans& scans() { return scans_; }

  /// Finds and opens the main expressions of a Version, or the segments of an expression.
  ExpressionList colScanForExpressions(const ObjectRef& objParent);

  /// The document of any object's file; "" when there is none.
  std::string strRetrieveAVDocGUIDFromGUID(const std::string& strGUID);

 private:
  std::string strDeleteFile(const std::string& strGUID);
  std::string strDeleteAll();
  std::string strDeleteRemoved(const std::string& strGUID);
  std::string strSaveBehind(std::string bytes, const std::string& strGUID);
  std::string strStatus() const;
  void takeBackLeft();

  ApplicationModule& app_;
  bool bFileSystem_ = true;
  bool bReadsOnly_ = false;
  NewFileNames names_;
  RemovedFiles removed_;
  PlannedRemovals planned_;
  GuardedFiles guard_;
  std::unique_ptr<FilesBehind> behind_;             // null when files are made at once
  std::vector<std::unique_ptr<FilesBehind>> left_;  // those that could not take all back
  FolderScans scans_;
  ExpressionFinder expressions_;
  std::string leftOut_;
  UnflushedFiles unflushed_;
  std::string saveFailure_;
  std::unique_ptr<DocumentRescue> rescue_;
};

}  // namespace velra
