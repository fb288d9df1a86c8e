// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "rescue/RescueRecords.h"
#include "rescue/SavePlans.h"

namespace velra {

class RescueStore;
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
  std::string plan(const SavePlan& save);
  std::string plan(const CopyPlan& copy);

  /// All that is kept of the document has been saved: as it was planned, or under another name or
  /// without a plan.
  void finishSave();
  void finishCopy();
  void abandonSave();

  /// Keeps objects, in place of what was kept of them; those of `paths` are kept no more.
  void keep(std::vector<KeptObject> objects, std::vector<std::string> paths);
  /// Tries once more what the store could not take.
  void keepAgain();

  /// Keeps a picture that is about to go, and that kept objects need.
  void keepPicture(const std::string& path);

  /// Keeps another program's bytes that go; returns when they have reached the disk. Why they have
  /// not, or "".
  std::string keepReplaced(const std::string& path, const std::string& bytes);

  /// An untrapped error ends the program.
  void endedByError();

  /// The files that saves have removed are gone from the disk.
  void removalsDone();

 private:
  /// What the writer's thread knows of the session.
  struct Session {
    std::string document;
    SessionId id = 0;  // 0 until the store has taken it
    // By path, what has not reached the store; nothing where nothing is to be kept.
    std::map<std::string, std::optional<KeptObject>> waiting;
    // How the last save ended, as long as the store could not be told. The next opening would take
    // it for one that was cut off, or not know what it has removed.
    void (SavePlans::*owed)(SessionId) = nullptr;

    SessionId begun(RescueStore& store);
    void keepWaiting(RescueStore& store);
  };
  using Task = std::function<void(RescueStore& store, Session& session)>;

  std::function<void(RescueStore&)> inSession(Task task) const;
  void post(Task task);
  void endSave(void (SavePlans::*end)(SessionId));

  RescueWriter& writer_;
  std::shared_ptr<Session> session_;
};

}  // namespace velra
