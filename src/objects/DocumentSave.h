// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace velra {

class ApplicationModule;
class AVDocument;
class DescribedObject;
class IOManager;
class ObjectRegistry;
class SavePoint;

/// How a document is saved with all of its objects, and what of that is taken back when it fails.
/// One instance is made for one command.
class DocumentSave {
 public:
  DocumentSave(ApplicationModule& app, AVDocument& document);

  /// What `AVDocument` has under the same names.
  bool bSave();
  bool bSaveAs(const std::string& strAVDocPathName);

 private:
  enum class Outcome { Done, NotWritten, NotSynced };

  bool refused(const std::string& message);
  void renumber(DescribedObject& object);
  bool bSaveAllObjects();
  std::vector<std::string> filesToRemove();
  Outcome saveAsFrom(SavePoint& before, const std::string& strAVDocPathName);
  bool bRenamedAndSaved(SavePoint& before, const std::string& strAVDocPathName);
  bool bSaveAllObjectsAs(SavePoint& before, const std::string& strAVDocPathName);

  ApplicationModule& app_;
  AVDocument& document_;
  ObjectRegistry& objects_;
  IOManager& io_;
};

}  // namespace velra
