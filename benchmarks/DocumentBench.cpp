// SPDX-License-Identifier: GPL-3.0-or-later
#include "DocumentBench.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <utility>

#include "BenchSchema.h"
#include "BenchSession.h"
#include "DocumentMaker.h"
#include "PlainParse.h"
#include "RunFolder.h"
#include "SlowShelf.h"
#include "base/Text.h"
#include "rescue/RescueWriter.h"
#include "schema/SEColl.h"
#include "shell/SearchAhead.h"
#include "store/ObjectRegistry.h"

namespace velra::bench {

namespace {

namespace fs = std::filesystem;

struct Figures {
  int objects = 0;
  double parse = 0;  // P: every file read, parsed and dropped, milliseconds
  double open = 0;
  double slowOpen = 0;  // `measureSlowOpen`; one document alone is measured
  double saveOne = 0;   // after one edit
  double saveAs = 0;
  double copy = 0;        // every file copied one by one, and a sync at the end
  double removeEach = 0;  // each removed object
  double search = 0;
  double textPass = 0;  // one pass over the same texts
  double memory = 0;    // bytes held by the open document against bytes of its files
  double kept = 0;      // of these, the share that stays after closing
};

constexpr int kSlowObjects = 1000;  // a second and more is waited for these
constexpr int kManyObjects = 50'000;

// By the clock, where several threads are at work.
double leastTime(int repeats, const std::function<void()>& action) {
  Times times;
  for (int i = 0; i < repeats; ++i) times.take(action);
  return times.at(0);
}

// One edit of one object, as a form makes it.
void edit(DescribedObject& object) {
  SchemaElement* field = object.secol().field("Text7");
  field->setVContent(toText(field->vContent()) + "x");
  field->setBChanged(true);
}

double measureSaving(BenchSession& session) {
  Times times;
  const ObjectList objects = session.document()->collObjects().described();
  for (std::size_t i = 1; i <= 101; ++i) {
    DescribedObject& object = *objects[i * (objects.size() - 1) / 102];
    if (object.kind() == ObjectKind::AVDocument) continue;
    edit(object);
    times.take([&] { session.document()->bSave(); });
  }
  return times.at(0.5);
}

double measureSearch(BenchSession& session) {
  long hits = 0;
  return leastTime(3, [&] {
    SearchAhead search(session.document()->collObjects().described(), "Küste", false);
    search.countOn(search.objects().size(), {});
    for (std::size_t i = 0; i < search.counted(); ++i) hits += search.hitsIn(i);
  });
}

// What a search cannot do without: each text looked at once.
double measureTextPass(BenchSession& session) {
  std::size_t found = 0;
  return leastTime(3, [&] {
    for (const ObjectRef& object : session.document()->collObjects().described()) {
      for (const SchemaElement& field : object->secol()) {
        if (!field.bValid()) continue;
        if (const auto text = field.vContent().text()) {
          found += toLower(*text).find("küste") != std::string::npos ? 1U : 0U;
        }
      }
    }
  });
}

// Versions with all that is below them, the median of 21; each from a document that is nearly
// whole, which a small one is not for long.
double measureRemoval(BenchSession& session, const std::string& path) {
  Times times;
  const std::size_t nearlyWhole = session.document()->collObjects().Count() * 9 / 10;
  for (int i = 0; i < 21; ++i) {
    if (session.document()->collObjects().Count() < nearlyWhole) {
      session.close();
      session.open(path);
    }
    const ObjectRef version = session.document()->colChilds().front();
    const auto removed = static_cast<double>(version->colSelSubTree().size());
    ObjectRef object = version;
    Times one;
    one.takeWork([&] {
      object->strRemoveAllChilds();
      session.document()->RemoveObject(object);
    });
    times.add(one.at(0) / removed);
  }
  return times.at(0.5);
}

// In turns with P, so that both meet the machine as it is; the better of the openings alone, since
// closing the document before is no part of one.
void measureOpen(BenchSession& session, const std::string& path, int turns, Figures& figures) {
  session.open(path);  // warms the heap
  session.close();
  const double before = heapBytes();
  session.open(path);
  const std::string place = fs::path(path).parent_path();
  const double files = plainBytes(place);
  session.app.lateRelease.await();
  figures.memory = (heapBytes() - before) / files;
  session.close();
  figures.kept = (heapBytes() - before) / files;
  Times parses;
  Times opens;
  for (int i = 0; i < turns; ++i) {
    session.close();
    parses.take([&] { plainParse(place); });
    opens.take([&] { session.open(path); });
  }
  figures.parse = parses.at(0);
  figures.open = opens.at(0);
}

// A shelf far away: what an opening takes of what its calls would take one after another.
double measureSlowOpen(BenchSession& session, const std::string& path) {
  session.close();
  const SlowShelf shelf;
  Times times;
  times.take([&] { session.open(path); });
  return times.at(0) / SlowShelf::inTurn();
}

// What a Save As cannot do without: as many files of that size, made one by one, and the sync.
void plainCopy(const fs::path& from, const fs::path& to) {
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(from)) {
    const fs::path target = to / entry.path().lexically_relative(from);
    entry.is_directory() ? fs::create_directories(target) : fs::copy_file(entry.path(), target);
  }
  ::sync();
}

// Both with what the system has to do to bring all to the disk, in turns; the middle of five or
// more, since the disk gives each side its lucky moment, which the best would be. What is told to
// the store of unsaved work is part of it, as in the program.
void measureSaveAs(BenchSession& session, const std::string& path, RunFolder& run, int turns,
                   Figures& figures) {
  Times saves;
  Times copies;
  RescueWriter store(run.make("state") + "/rescue.sqlite");
  session.app.rescue = &store;
  for (int i = 0; i < turns; ++i) {
    session.close();
    session.open(path);
    const std::string saved = run.make("saved");
    const std::string copied = run.make("copied");
    ::sync();  // what was written before is no part of it
    saves.take([&] { session.document()->bSaveAs(saved + "/copy.xml"); });
    copies.take([&] { plainCopy(fs::path(path).parent_path(), copied); });
  }
  for (const std::string& box : session.ui.takeShown()) std::puts(box.c_str());
  session.close();
  session.app.rescue = nullptr;
  for (const auto& [name, times] : {std::pair("save as", &saves), {"plain copy", &copies}}) {
    std::printf("%s: %.0f ms, from %.0f to %.0f\n", name, times->at(0.5), times->at(0),
                times->at(1));
  }
  figures.saveAs = saves.at(0.5);
  figures.copy = copies.at(0.5);
}

Figures measureDocument(RunFolder& run, const std::string& schema, int objects) {
  Figures figures;
  figures.objects = objects;
  const std::string place = run.make(std::to_string(objects));
  const std::string path = makeDocument(place, {objects, 20000});
  BenchSession session(run.path(), schema);
  measureOpen(session, path, objects > 10000 ? 4 : 6, figures);
  if (objects == kSlowObjects) figures.slowOpen = measureSlowOpen(session, path);
  figures.saveOne = measureSaving(session);
  figures.search = measureSearch(session);
  figures.textPass = measureTextPass(session);
  figures.removeEach = measureRemoval(session, path);
  measureSaveAs(session, path, run, objects > 10000 ? 5 : 15, figures);
  return figures;
}

void addFor(const Figures& f, std::vector<Measure>& measures) {
  const std::string size = " at " + std::to_string(f.objects);
  const double perObject = 1000 / static_cast<double>(f.objects);
  std::printf("%d objects: each read and parsed once in %.0f us, opened in %.0f, removed in %.1f\n",
              f.objects, f.parse * perObject, f.open * perObject, f.removeEach * 1000);
  measures.push_back({"open / P" + size, f.open / f.parse, "", 1});
  if (f.objects == kSlowObjects) {
    measures.push_back({"open far away / call after call", f.slowOpen, "", 0.125});
  }
  measures.push_back({"save as / plain copy" + size, f.saveAs / f.copy, "", 1.3});
  measures.push_back({"memory / file bytes" + size, f.memory, "", 1.5});
  measures.push_back({"memory kept after closing" + size, f.kept, "", 0.1});
  const double searchBudget = f.objects == kManyObjects ? 0.5 : 1;  // a thread is begun in the rest
  measures.push_back({"search / one pass" + size, f.search / f.textPass, "", searchBudget});
}

}  // namespace

std::vector<Measure> measureDocuments(const std::string& folder) {
  RunFolder run(folder);
  const std::string schema = makeSchema(run.path());
  std::vector<Measure> measures;
  std::vector<Figures> all;
  for (const int objects : {1000, 10000, kManyObjects}) {
    all.push_back(measureDocument(run, schema, objects));
    addFor(all.back(), measures);
  }
  const Figures& small = all.front();
  const Figures& large = all.back();
  const double openEach = (large.open / large.objects) / (small.open / small.objects);
  measures.push_back({"open, each object, 50,000 / 1,000", openEach, "", 1.5});
  measures.push_back({"save one, 50,000 / 1,000", large.saveOne / small.saveOne, "", 3});
  measures.push_back(
      {"remove, each object, 50,000 / 1,000", large.removeEach / small.removeEach, "", 3});
  return measures;
}

}  // namespace velra::bench
