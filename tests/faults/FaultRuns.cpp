// SPDX-License-Identifier: GPL-3.0-or-later
#include <chrono>
#include <cstdio>

#include "base/Text.h"
#include "faults/Experiment.h"
#include "faults/Injector.h"
#include "faults/Runs.h"
#include "platform/settings/UserSettings.h"
#include "rescue/KeptWorkList.h"
#include "rescue/RescueStore.h"
#include "rescue/RescueWriter.h"

namespace velra::test {
namespace {

using Files = std::map<std::string, std::string>;
using Act = bool (*)(Experiment&);  // false when it was refused

// Something that a person does with an open document, and what they do when it was refused.
struct Work {
  const char* name;
  bool change;  // all objects, before it
  Act act;
  Act again;
  bool inParts;  // what is found after it may lack a part: a picture, or what was still to be kept
};

bool save(Experiment& at) {
  return at.session.document()->bSave();
}

bool saveAs(Experiment& at) {
  return at.session.document()->bSaveAs(at.copyPath);
}

bool saveAndClose(Experiment& at) {
  if (!save(at)) return false;
  at.session.close();
  return true;
}

bool removeAndClose(Experiment& at) {
  const auto video = at.session.expression("video1");
  video->RemoveSubExpressionByPointer(video->colSubExpressions()[1]);
  return saveAndClose(at);
}

bool cutAndSave(Experiment& at) {
  at.session.expression("video1")->AddSubExpression("cut", 2, 3);
  return save(at);
}

bool keep(Experiment& at) {
  while (at.session.document()->keepUnsavedWork()) {
  }
  at.session.app.rescue->finish(std::chrono::seconds(10));
  if (at.session.app.rescue->failure().empty()) return true;
  at.session.ui.shown.emplace_back("not kept");
  return false;
}

bool set(Experiment& at) {
  UserSettings(at.settingsPath).write("Window", {{"Place", "new"}});
  const bool done = UserSettings(at.settingsPath).read("Window", "Place", "") == "new";
  if (!done) at.session.ui.shown.emplace_back("not set");
  return done;
}

constexpr Work kWorks[] = {
    {"save", true, save, save, false},
    {"save as", true, saveAs, saveAs, false},
    {"remove and close", false, removeAndClose, saveAndClose, false},
    {"cut", false, cutAndSave, save, true},
    {"keep", true, keep, keep, true},
    {"set", false, set, set, false},
};

void changeAll(DocumentSession& session) {
  const auto document = session.document();
  for (const ObjectRef& object : document->collObjects().described()) {
    if (object->kind() != ObjectKind::Storage) {
      object->setStrTitle(object->strTitle() + std::string(5000, '+'));
    }
  }
  document->AddChild("new-version");
  as<LadderObject>(session.object("version1"))->AddChild("new-medium");
  const auto video = session.expression("video1");
  video->RemoveSubExpressionByPointer(video->colSubExpressions()[0]);
  session.expression("audio1")->AddSubExpression("new-segment", 5, 6);
}

// All lines of a text stand in another, which may tell more behind each.
bool isPart(const std::string& text, const std::string& whole) {
  for (const std::string& line : split(text, '\n')) {
    if (("\n" + whole).find("\n" + line) == std::string::npos) return false;
  }
  return true;
}

std::string trimmedEnd(const std::string& text) {
  return text.substr(0, text.find_last_not_of('\n') + 1);
}

/// Does one work with one fault after the other.
class FaultRun {
 public:
  FaultRun(Experiment& at, const Work& work);

  /// Tries one fault of `stride`; how many failed.
  int tryAll(int stride);

 private:
  void perform(const Fault& fault);
  bool passed(const Fault& fault);
  std::string found();
  void checkFiles();

  Experiment& at_;
  const Work& work_;
  Shared<Report> report_;
  Files filesAfter_;
  std::string old_;
  std::string new_;
  int calls_ = 0;
};

FaultRun::FaultRun(Experiment& at, const Work& work) : at_(at), work_(work) {
  at_.restore();
  old_ = found();
  at_.restore();
  Experiment::ended(at_.start(*report_, [this] { perform({}); }));
  calls_ = report_->calls;
  new_ = found();
  filesAfter_ = at_.session.folder.snapshot();
}

// What a fresh process finds: in the document, in its copy, in the store, and in the settings.
std::string FaultRun::found() {
  at_.read(*report_, at_.session.files.documentPath());
  std::string all = report_->content;
  at_.read(*report_, at_.copyPath);
  all += std::string("copy\n") + report_->content + "kept\n";
  RescueStore store(at_.storePath);
  for (const KeptWork& session : keptWork(store, "")) {
    for (const KeptObject& object : keptObjects(store, session.session)) {
      all += object.path + (object.removed ? " removed\n" : "\n");
    }
  }
  return all + UserSettings(at_.settingsPath).read("Window", "Place", "");
}

bool isHidden(const std::string& name) {
  return name.starts_with('.');
}

// When a failure was told, each file is as it was or as it was to be. Where no call works any more,
// a shorter content keeps line ends behind its root, and what was to replace a file, or to come
// into a new folder, lies beside it.
void FaultRun::checkFiles() {
  const auto holds = [](const Files& files, const auto& file) {
    const auto at = files.find(file.first);
    return at != files.end() && trimmedEnd(at->second) == trimmedEnd(file.second);
  };
  for (const auto& file : at_.session.folder.snapshot()) {
    if (file.first.starts_with("state/") || file.first.ends_with(".new")) continue;
    if (isHidden(file.first)) continue;
    if (holds(at_.filesAtFirst(), file)) continue;
    if (!holds(filesAfter_, file)) report_->complain(file.first + " is neither old nor new");
  }
}

void FaultRun::perform(const Fault& fault) {
  RescueWriter writer(at_.storePath);
  DocumentSession& session = at_.session;
  session.app.rescue = &writer;
  session.open(session.files.documentPath());
  if (work_.change) changeAll(session);
  writer.finish(std::chrono::seconds(10));
  session.takeShown();
  arm(fault);
  const bool done = work_.act(at_);
  report_->calls = disarm();
  if (!done) {
    if (session.takeShown().empty()) report_->complain("a failure is not told");
    checkFiles();
    if (!work_.again(at_)) {
      report_->complain("it fails again");
      for (const std::string& text : session.takeShown()) report_->complain(text);
    }
  }
  session.close();
}

bool FaultRun::passed(const Fault& fault) {
  at_.restore();
  report_->trouble[0] = '\0';
  const bool lives = Experiment::ended(at_.start(*report_, [&] { perform(fault); }));
  const std::string now = found();
  for (const auto& file : at_.session.folder.snapshot()) {
    if (isHidden(file.first)) report_->complain(file.first + " is left");
  }
  const bool sound = now == new_ || (!lives && now == old_) || (work_.inParts && isPart(now, new_));
  if (sound && report_->trouble[0] == '\0') return true;
  std::printf("%s, %s\n  %s\n", work_.name, nameOf(fault).c_str(), report_->trouble);
  if (!sound) std::printf("--- found\n%s\n--- in place of\n%s\n", now.c_str(), new_.c_str());
  return false;
}

int FaultRun::tryAll(int stride) {
  int tried = 0;
  int failed = 0;
  for (int number = 1; number <= calls_; ++number) {
    for (const Fault& fault : faultsAt(number)) {
      if (tried++ % stride == 0 && !passed(fault)) ++failed;
    }
  }
  std::printf("%s: %d calls, %d faults, one of %d tried, %d failed\n", work_.name, calls_, tried,
              stride, failed);
  std::fflush(stdout);
  return failed;
}

}  // namespace

int runFaults(int stride) {
  Experiment at;
  int failed = 0;
  for (const Work& work : kWorks) failed += FaultRun(at, work).tryAll(stride);
  return failed;
}

}  // namespace velra::test
