// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "rescue/RescueRecords.h"

namespace velra {

class RescueWriter;

/// One opening of one document, as the store keeps it. Used by the thread of the windows.
class DocumentRescue {
 public:
  /// Begins a session of the document, whose path is absolute.
  DocumentRescue(RescueWriter& writer, std::string document);
  DocumentRescue(const DocumentRescue&) = delete;
  DocumentRescue& operator=(const DocumentRescue&) = delete;
  /// What is kept stays, for whoever opens the document next.
  ~DocumentRescue();

  /// Returns when the plan has reached the disk. Why it has not, or "": the save is then as safe as
  /// the files alone can make it.
  std::string planSave(SavePlan plan);
  void finishSave();
  void abandonSave();

  /// All that is kept of the document has been saved under another name.
  void savedElsewhere();

  /// Keeps objects, in place of what was kept of them; those of `paths` are kept no more.
  void keep(std::vector<KeptObject> objects, std::vector<std::string> paths);

  /// An untrapped error ends the program.
  void endedByError();

  /// The files that saves have removed are gone from the disk.
  void removalsDone();

 private:
  RescueWriter& writer_;
  std::shared_ptr<SessionId> session_;  // set by the writer's thread
};

}  // namespace velra
