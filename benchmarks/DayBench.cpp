// SPDX-License-Identifier: GPL-3.0-or-later
#include "DayBench.h"

#include <QTreeView>

#include "BenchMovies.h"
#include "BenchSchema.h"
#include "Day.h"
#include "DayHands.h"
#include "DocumentMaker.h"
#include "RunFolder.h"
#include "base/Paths.h"
#include "objects/AVDocument.h"
#include "platform/files/Files.h"

namespace velra::bench {

namespace {

constexpr int kSegments = 19'000;  // of the first Version, in Videos and in Audios
constexpr int kSegmentsOfAnother = 6'000;
constexpr int kLookMilliseconds = 1000;  // which a person needs to see what has come
constexpr int kRows = 200;
constexpr int kChanges = 2'000;

void open(Day& day, const char* name, const std::string& path, const std::vector<Act>& more = {}) {
  day.step(
      name,
      [&] {
        std::vector<Act> acts{choosingFile(path)};
        acts.insert(acts.end(), more.begin(), more.end());
        willMeet(acts);
        choose(day.program.window, "mnuFileOpen");
      },
      Day::Kind::Long);
}

void lookAround(Day& day) {
  QTreeView& view = day.view(TreeId::tvwExpression);
  pause(kLookMilliseconds);
  day.step("select a Version of 38,000 objects", [&] {
    clickNode(day.view(TreeId::tvwMainTree), day.nodeOf(TreeId::tvwMainTree, "Cut 1"));
  });
  clickNode(view, *day.program.rules.tvwExpression.root());
  day.step("expand all", [&] { strike(view, Qt::Key_Asterisk); });
  day.step("walk down the tree by the arrow key, 200 rows", [&] {
    for (int row = 0; row < kRows; ++row) strike(view, Qt::Key_Down);
  });
}

void find(Day& day, const char* name, const char* text, Day::Kind kind) {
  day.step(
      name,
      [&] {
        willMeet({[&](QWidget& dialog) {
                    type(control(dialog, "Text1"), QLatin1String(text));
                    press(dialog, "OKButt");
                  },
                  [](QWidget& results) {
                    pause(100);
                    press(results, "OKButton");
                  }});
        choose(day.program.window, "mnuFileFind");
      },
      kind);
}

void save(Day& day, const char* name, Day::Kind kind) {
  day.step(
      name, [&] { choose(day.program.window, "mnuFileSave"); }, kind);
}

// As a large import leaves them.
void changeMany(Day& day) {
  int left = kChanges;
  for (const ObjectRef& object : day.program.app.gAVDoc->collObjects().described()) {
    if (object->kind() == ObjectKind::Video && left-- > 0) object->setStrTitle("changed");
  }
}

void endTheDay(Day& day, RunFolder& run, const std::string& path) {
  save(day, "save what was cut and removed", Day::Kind::Bulk);
  day.program.app.gAVDoc->setStrTitle("one change");
  save(day, "save one change", Day::Kind::Usual);
  day.step("keep 2,000 changes", [&] {
    changeMany(day);
    pause(2000);
  });
  save(day, "save 2,000 changes", Day::Kind::Bulk);
  day.step("open the File menu", [&] { day.program.rules.mnuFile_Click(); });
  day.step(
      "export as a table",
      [&] {
        willMeet({choosingFile(run.path() + "/film.csv", 0)});
        choose(day.program.window, "mnuFileExportAs");
      },
      Day::Kind::Bulk);
  day.step(
      "Save As",
      [&] {
        willMeet({choosingFile(run.make("copy") + "/copy.xml")});
        choose(day.program.window, "mnuFileSaveAs");
      },
      Day::Kind::Long);
  day.step("New, which closes 38,000 objects", [&] { choose(day.program.window, "mnuFileNew"); });
  open(day, "open again", path, {pressing("cmdNo")});
  day.step("close the program", [&] {
    choose(day.program.window, "mnuFileClose");
    day.program.rules.releaseDocument();
  });
}

}  // namespace

std::vector<Measure> measureDay(const std::string& folder) {
  const std::string movie = makeLongMovie(folder, kSegments + 100);
  if (movie.empty()) return {{"movies made by ffmpeg", 1, "", 0}};
  RunFolder run(folder);
  DocumentPlan plan;
  plan.wordsInOneTranscript = 20'000;
  plan.segmentsOfOneVersion = kSegments;
  plan.segmentsOfAnother = kSegmentsOfAnother;
  plan.movie = movie.c_str();
  const std::string path = makeDocument(run.make("day"), plan);
  // A save that makes a file waits for all that the disk is behind with.
  syncFolder(run.path());
  Day day(run.path(), makeSchema(run.path()));
  open(day, "open", path);
  lookAround(day);
  workOnForms(day, movie);
  find(day, "find, for the first time", "lighthouse", Day::Kind::Long);
  find(day, "find once more", "harbour", Day::Kind::Usual);
  workOnTool(day);
  endTheDay(day, run, path);
  return day.measures();
}

}  // namespace velra::bench
