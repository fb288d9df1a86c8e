// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "objects/PlannedSave.h"
#include "protocol/DescribedObject.h"
#include "rescue/RescueRecords.h"

namespace velra {

class ApplicationModule;
class AVDocument;
class IOManager;
class ObjectRegistry;
class SavePoint;
class VideoExpression;

/// How a document is saved with all of its objects under another name, and what is taken back when
/// that fails. The store knows what will be made before the first file is: of the pictures first,
/// which are copied while the objects get their names, and then of all. One instance is made for
/// one command.
class SaveUnderName {
 public:
  SaveUnderName(ApplicationModule& app, AVDocument& document);

  /// What `AVDocument` has under the same name.
  bool bSaveAs(const std::string& strAVDocPathName);

 private:
  enum class Outcome { Done, NotWritten, NotSynced };
  // A picture that is still to come to its new place.
  struct Relocation {
    VideoExpression* video;
    std::string from;
    std::string to;
  };

  Outcome saveAsFrom(SavePoint& before, const std::string& strAVDocPathName);
  bool bMakeFiles(SavePoint& before, const std::string& strAVDocPathName);
  bool bHandOverAll(SavePoint& before, const std::string& strAVDocPathName);
  bool bFolderMade(const std::string& strAVDocPathName);
  void handOverPictures(SavePoint& before, const std::string& strAVDocPathName);
  void renameObjects(SavePoint& before, const std::string& strAVDocPathName);
  void renameKeyFrame(VideoExpression& video, SavePoint& before,
                      const std::string& strAVDocPathName);
  void tellOfRelocated(SavePoint& before, const std::vector<bool>& made) const;
  std::string strFlushNewFiles();
  std::string strFlush();

  ApplicationModule& app_;
  AVDocument& document_;
  ObjectRegistry& objects_;
  IOManager& io_;
  ObjectList described_;
  std::vector<MadeFile> made_;
  std::vector<Relocation> relocations_;
  std::string hidden_;                  // where files of a new data folder are made; "" for none
  std::optional<PlannedSave> planned_;  // until all is done, or taken back
};

}  // namespace velra
