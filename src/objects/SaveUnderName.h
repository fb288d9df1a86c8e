// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "objects/PlannedSave.h"
#include "rescue/RescueRecords.h"

namespace velra {

class ApplicationModule;
class AVDocument;
class IOManager;
class ObjectRegistry;
class SavePoint;
class VideoExpression;

/// How a document is saved with all of its objects under another name, and what is taken back when
/// that fails. All names are given first, so that the store knows what will be made before the
/// first file is. One instance is made for one command.
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
  bool bNamedAnew(SavePoint& before, const std::string& strAVDocPathName);
  bool bRename(SavePoint& before, const std::string& strAVDocPathName);
  void renameKeyFrame(VideoExpression& video, SavePoint& before,
                      const std::string& strAVDocPathName);
  bool bHandOverAll();
  std::string strFlush();
  bool bSaveAllObjectsAs(SavePoint& before);

  ApplicationModule& app_;
  AVDocument& document_;
  ObjectRegistry& objects_;
  IOManager& io_;
  std::vector<MadeFile> made_;
  std::vector<Relocation> relocations_;
  std::optional<PlannedSave> planned_;  // until all is done, or taken back
};

}  // namespace velra
