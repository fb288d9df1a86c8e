// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_set>
#include <vector>

#include "protocol/DescribedObject.h"
#include "protocol/Expression.h"
#include "schema/ObjectFiles.h"
#include "schema/SchemaFile.h"
#include "store/FolderScan.h"
#include "store/NumberSource.h"
#include "store/ObjRecord.h"

namespace velra {

class ApplicationModule;
class ObjectRegistry;

/// Finds, writes and deletes object files; `FolderScan` reads them for it. One instance belongs to
/// one open document and is shared by all of its objects; its end deletes the files of removed
/// objects. A server was foreseen as a second back end and is not there: with `bFileSystem` false
/// the operations do nothing.
class IOManager : public ObjectFiles, public std::enable_shared_from_this<IOManager> {
 public:
  explicit IOManager(ApplicationModule& app);
  IOManager(const IOManager&) = delete;
  IOManager& operator=(const IOManager&) = delete;
  ~IOManager() override;

  /// Identifiers of the files to delete at the next strSync.
  const std::vector<std::string>& colGUIDToRemove() const { return colGUIDToRemove_; }
  /// Address of a server; nothing sets it.
  std::string strHTTP() const { return {}; }

  void RemoveGUID(const std::string& strGUIDToRemove);
  /// Takes the identifiers of living objects from the list: numbers are used again, so a new object
  /// may have that of a removed one which was never saved.
  void keepFilesOf(ObjectRegistry& collObjects);

  /// The path of a new object's file in the layout of the document; the data folder is made when it
  /// is missing. A failure of that comes back in place of the path.
  std::string strCreateGUID(ObjectRegistry& collObjects, const DescribedObject& objNew,
                            const std::string& strAVDocPathName);
  /// The same for a file of a class and an extension, without the point.
  std::string strCreateGUID(ObjectRegistry& collObjects, const std::string& className,
                            const std::string& extension, const std::string& strAVDocPathName);

  /// Makes the data folder of a document when it is missing; the message that tells why not, or "".
  /// Whoever wants a name asks this first, or takes that message for a name.
  std::string strMakeDataFolder(const std::string& strAVDocPathName) const;

  /// True for a name that was given to a new object or picture and under which this manager has
  /// written nothing yet. What lies there all the same is another program's.
  bool isPromised(const std::string& strGUID) const { return promised_.contains(strGUID); }
  /// Makes a name one of these again, after a save that was taken back.
  void promise(const std::string& strGUID) { promised_.insert(strGUID); }
  /// Takes such a name back. What this manager has written under it goes; another program's file
  /// stays.
  void withdraw(const std::string& strGUID);

  std::string strOpen(XmlDocument& objDOMDocument, const std::string& strGUID) override;
  std::string strSave(const XmlWriter& objDOMDocument, const std::string& strGUID) override;

  /// Why the last strSave failed; "" when it did not.
  const std::string& strSaveFailure() const { return saveFailure_; }

  /// Which folder could not be searched for expressions since the opening began, and why; "" when
  /// all could.
  const std::string& strUnlisted() const { return unlisted_; }

  /// Brings what was saved since the last call to the disk. The failure's description, or "".
  std::string strFlush();

  /// Equality of identifiers: the same absolute path.
  bool bGUIDComp(const std::string& strGUID1, const std::string& strGUID2) const;

  bool bFileSystem() const { return bFileSystem_; }
  void setBFileSystem(bool fileSystem) { bFileSystem_ = fileSystem; }

  /// Deletes the files of removed objects. The identifiers that could not be deleted and the last
  /// reason, or "".
  std::string strSync();

  /// The class of a file: the name of its root. A file that cannot be parsed is reported in a box
  /// and has none.
  std::string strWhatIs(const std::string& strGUID);

  /// Finds and opens the main expressions of a Version, or the segments of an expression.
  ExpressionList colScanForExpressions(const ObjectRef& objParent);

  /// The document of any object's file; "" when there is none.
  std::string strRetrieveAVDocGUIDFromGUID(const std::string& strGUID);

  /// Third piece of a text of the form "urn:talvo:class"; kSubscriptOutOfRange for fewer pieces.
  static std::string ExtractTypeFromURN(const std::string& strURN);

  /// Raise a run-time error on failure.
  void MoveObject(const std::string& source, const std::string& destination);
  void CopyObject(const std::string& source, const std::string& destination);

  bool bConnectToDM() const { return false; }

  /// While an object of this kind lives, the searches take the folder for unchanged since the first
  /// of them, and each file is read once.
  class Opening {
   public:
    explicit Opening(IOManager& io);
    ~Opening();
    Opening(const Opening&) = delete;
    Opening& operator=(const Opening&) = delete;

   private:
    IOManager& io_;
    std::unique_ptr<DocumentSchemas::Hold> hold_;
  };

  /// While an object of this kind lives, one listing of the document's data folder serves all new
  /// names.
  class Naming {
   public:
    Naming(IOManager& io, ObjectRegistry& collObjects, const std::string& strAVDocPathName);
    ~Naming();
    Naming(const Naming&) = delete;
    Naming& operator=(const Naming&) = delete;

   private:
    IOManager& io_;
    NumberSource::Listing listing_;
  };

  /// True when what is known of the searched folders agrees with itself; for tests.
  bool checkConsistency() const;

  /// The fields of a file that a search has read already; nothing when it has to be read.
  std::optional<LoadedFields> takeLoadedFields(const std::string& strGUID,
                                               const std::string& className);

 private:
  std::vector<ObjRecord> colScanRelatives(const std::string& strGUID, const std::string& strClass,
                                          const std::string& strRelation,
                                          const std::string& strWantedClass);
  bool considerFile(const std::string& path, const ScannedFile& file,
                    const std::vector<std::string>& classes, FolderScan::Relation relation,
                    const std::string& strClass, const std::string& strGUID, ObjRecord& record);
  std::string strGetParentGUID(const std::string& strGUID, const std::string& className);
  std::string parentOfExpression(const std::string& strGUID, const std::string& className);
  ExpressionRef openFound(const std::string& className, const std::string& guid,
                          const ExpressionRef& parent, const ObjectRef& version);
  ExpressionList scanForVersion(const ObjectRef& version);
  ExpressionList scanForExpression(const ExpressionRef& parent);
  std::string strDeleteFile(const std::string& strGUID);
  FolderScan& scanOf(const std::string& folder);

  ApplicationModule& app_;
  bool bFileSystem_ = true;
  std::vector<std::string> colGUIDToRemove_;
  NumberSource::Listing* naming_ = nullptr;  // while a Naming lives
  std::map<std::string, FolderScan> scans_;  // by the folder's normal form
  std::set<std::string> fresh_;              // folders that this opening has looked at
  unsigned scanGeneration_ = 0;              // of the current folder, when the scans were made
  int openings_ = 0;
  int depth_ = 0;  // of the expression that is being opened
  std::string unflushedFolder_;
  std::unordered_set<std::string> promised_;  // names of files that are still to be made
  std::string saveFailure_;
  std::string unlisted_;
};

/// The folder that holds all other files of a document, with a separator at its end.
std::string dataFolderOf(const std::string& strAVDocPathName);

/// Makes a folder; the message that tells why not, or "".
std::string strMakeFolder(const ApplicationModule& app, const std::string& path);

/// 32 lower-case hexadecimal digits that no other call gives.
std::string strMakeGUIDText();

}  // namespace velra
