// SPDX-License-Identifier: GPL-3.0-or-later
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <random>

#include "base/Paths.h"
#include "faults/Experiment.h"
#include "faults/Injector.h"
#include "faults/Model.h"
#include "faults/Runs.h"
#include "protocol/ClassRules.h"
#include "rescue/DocumentRescue.h"
#include "rescue/KeptWorkList.h"
#include "rescue/Recovery.h"
#include "rescue/RescueStore.h"
#include "rescue/RescueWriter.h"
#include "store/IOManager.h"

namespace velra::test {
namespace {

enum class End { Saved, SavedAs, Left, Killed, KilledInSave };

// What one start of the program tells the next, though it may be killed.
struct Life {
  Report report;
  int names;           // how many were given
  char saved[50'000];  // what the document on the disk has to hold
  char now[50'000];    // and that in memory
};

void put(char (&place)[50'000], const std::string& text) {
  std::strncpy(place, text.c_str(), sizeof(place) - 1);
}

/// One start of the program: it opens the document, does some commands, and ends somehow.
class LifeRun {
 public:
  LifeRun(Experiment& at, Life& life, unsigned seed)
      : at_(at), life_(life), random_(seed), model_(life.saved) {}

  void live(const std::string& path, End how) {
    RescueWriter writer(at_.storePath);
    at_.session.app.rescue = &writer;
    const std::string message = at_.session.open(path);
    if (!message.empty()) return life_.report.complain(message);
    for (std::size_t left = 1 + random_() % 8; left > 0; --left) {
      ++life_.names;
      doSomething();
      note();
    }
    ++life_.names;
    end(how);
  }

 private:
  // "" when there is none.
  std::string anyOf(const std::vector<std::string>& titles) {
    return titles.empty() ? "" : titles[random_() % titles.size()];
  }
  std::string anyOf(const Model::Choice& choice) { return anyOf(model_.titles(choice)); }

  template <class Kind>
  std::shared_ptr<Kind> object(const std::string& title) const {
    for (const ObjectRef& each : document().collObjects().described()) {
      if (each->strTitle() == title) return as<Kind>(each);
    }
    return nullptr;
  }
  AVDocument& document() const { return *at_.session.document(); }
  std::string newName() const { return "n" + std::to_string(life_.names); }
  void add(const std::string& className, const std::string& parent, const std::string& place) {
    model_.nodes[newName()] = {className, parent, place};
  }

  void doSomething();
  void addChild();
  void cut();
  void merge();
  void remove();
  void save();
  void note();
  void leave();
  void end(End how);

  Experiment& at_;
  Life& life_;
  std::mt19937 random_;
  Model model_;
};

void LifeRun::addChild() {
  const std::string parent = anyOf([](auto&, auto& node) {
    const std::string& name = node.className;
    return name == "AVDocument" || name == "Version" || name == "Media";
  });
  object<LadderObject>(parent)->AddChild(newName());
  const ClassRules& rules = rulesOf(kindOfRoot(model_.nodes[parent].className).value());
  add(classNameOf(rules.childKind.value()), parent, "");
}

void LifeRun::cut() {
  const std::string parent = anyOf([](auto&, auto& node) {
    return !node.place.empty() && node.className != "Transcript";  // that has no words to share out
  });
  if (parent.empty()) return;
  const double start = life_.names * 4 / 1000.0;
  const double end = (life_.names * 4 + 2) / 1000.0;
  object<Expression>(parent)->AddSubExpression(newName(), start, end);
  const std::string& className = model_.nodes[parent].className;
  add(className, parent,
      " " + numberText(start) + ".." + numberText(end) + (className == "Video" ? " picture" : ""));
}

// The later segment goes, as the tool has it, and the earlier one takes its time.
void LifeRun::merge() {
  const std::string parent = anyOf([&](auto& title, auto& node) {
    return !node.place.empty() && model_.below(title).size() > 1;
  });
  if (parent.empty()) return;
  const auto segments = object<Expression>(parent)->colSubExpressions();
  const std::string gone = segments[1]->strTitle();
  segments[0]->SetChunk(0, 50);
  std::string& place = model_.nodes[segments[0]->strTitle()].place;
  place = place.ends_with("picture") ? " 0..50 picture" : " 0..50";
  object<Expression>(parent)->RemoveSubExpressionByPointer(segments[1]);
  model_.remove(gone);
}

// Segments take their pictures from the one movie, so its Storage stays, and what is above it.
void LifeRun::remove() {
  std::set<std::string> stay;
  for (std::string at = anyOf([](auto&title, auto&) { return title.ends_with(".avi"); });
       !at.empty(); at = model_.nodes[at].parent) {
    stay.insert(at);
  }
  const std::string title = anyOf([&](auto& each, auto&) { return !stay.contains(each); });
  if (title.empty()) return;
  ObjectRef removed = object<DescribedObject>(title);
  removed->strRemoveAllChilds();
  document().RemoveObject(removed);
  model_.remove(title);
}

void LifeRun::save() {
  if (!document().bSave()) life_.report.complain("not saved");
  put(life_.saved, model_.content());
}

void LifeRun::doSomething() {
  switch (random_() % 8) {
    case 0:
      return addChild();
    case 1:
      return merge();
    case 2:
      return remove();
    case 3:
      return save();
    case 4:
    case 5: {
      const std::string title =
          anyOf([](auto&, auto& node) { return node.className != "Storage"; });
      object<DescribedObject>(title)->setStrTitle(newName());
      return model_.rename(title, newName());
    }
    default:
      return cut();
  }
}

void LifeRun::note() {
  put(life_.now, model_.content());
  if (contentOf(document()) != model_.content()) life_.report.complain("wrong in memory");
  while (document().keepUnsavedWork()) {
  }
  at_.session.app.rescue->finish(std::chrono::seconds(10));
}

// As the main window does it.
void LifeRun::leave() {
  const auto io = document().io();
  for (const RegisteredRef& changed : document().collObjects().changedObjects()) {
    if (changed->kind() != ObjectKind::MediaObject) continue;
    if (io->rescue()) io->rescue()->keepPicture(strAbsolutePath(changed->strGUID()));
    io->RemoveGUID(changed->strGUID());
  }
  at_.session.close();
}

void LifeRun::end(End how) {
  if (how == End::Saved) save();
  if (how == End::SavedAs && !document().bSaveAs(at_.session.folder / (newName() + ".xml"))) {
    life_.report.complain("not saved as");
  }
  if (how == End::Killed) ::raise(SIGKILL);
  if (how == End::KilledInSave) {
    arm({Mishap::KilledBefore, 0, static_cast<int>(1 + random_() % 60)});
    save();
    disarm();
  }
  leave();
}

/// Some lives of one document, one after the other.
class Sequence {
 public:
  Sequence(Experiment& at, unsigned seed) : at_(at), random_(seed) {}

  /// What went wrong, or "".
  std::string run() {
    at_.restore();
    at_.read(life_->report, path_);
    put(life_->saved, life_->report.content);
    for (int i = 0; i < 4 && life_->report.trouble[0] == '\0'; ++i) liveOnce();
    return life_->report.trouble;
  }

 private:
  void liveOnce();
  void checkDisk(const std::string& path, const std::string& wanted, const std::string& orElse);
  void recover();

  Experiment& at_;
  std::mt19937 random_;
  Shared<Life> life_;
  std::string path_ = at_.session.files.documentPath();
};

void Sequence::checkDisk(const std::string& path, const std::string& wanted,
                         const std::string& orElse) {
  at_.read(life_->report, path);
  const std::string content = life_->report.content;
  if (content == wanted || content == orElse) return;
  life_->report.complain(path + " holds\n" + content + "in place of\n" + wanted);
}

// What was not saved is all there in a new document, with which the work may go on.
void Sequence::recover() {
  RescueStore store(at_.storePath);
  const auto works = keptWork(store, path_);
  const std::string newPath = at_.session.folder / ("r" + std::to_string(life_->names) + ".xml");
  if (works.empty()) return life_->report.complain("nothing is kept");
  const Recovered recovered =
      recoverDocument(path_, keptObjects(store, works.front().session), newPath);
  life_->report.complain(recovered.failure);
  for (const std::string& note : recovered.notes) life_->report.complain(note);
  checkDisk(newPath, life_->now, life_->now);
  for (const KeptWork& work : works) dropKeptWork(store, work);
  if (random_() % 2 == 0) return;
  path_ = newPath;
  put(life_->saved, life_->now);
}

void Sequence::liveOnce() {
  const auto how = static_cast<End>(random_() % 5);
  const auto seed = static_cast<unsigned>(random_());
  const pid_t child =
      at_.start(life_->report, [&] { LifeRun(at_, *life_, seed).live(path_, how); });
  Experiment::ended(child);
  const std::string saved = life_->saved;
  const std::string now = life_->now;
  checkDisk(path_, saved, how == End::KilledInSave ? now : saved);
  if (how == End::KilledInSave) put(life_->saved, life_->report.content);
  if (how == End::SavedAs) {
    path_ = at_.session.folder / ("n" + std::to_string(life_->names) + ".xml");
    checkDisk(path_, now, now);
    put(life_->saved, now);
  }
  if (std::strcmp(life_->saved, life_->now) != 0) recover();
}

}  // namespace

int runModel(int sequences) {
  Experiment at;
  int failed = 0;
  for (int seed = 0; seed < sequences; ++seed) {
    const std::string trouble = Sequence(at, static_cast<unsigned>(seed)).run();
    if (trouble.empty()) continue;
    ++failed;
    std::printf("sequence %d: %s\n", seed, trouble.c_str());
  }
  std::printf("%d sequences, %d failed\n", sequences, failed);
  return failed;
}

}  // namespace velra::test
