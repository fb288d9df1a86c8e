// SPDX-License-Identifier: GPL-3.0-or-later
#include "RescueBench.h"

#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>

#include "BenchSchema.h"
#include "BenchSession.h"
#include "DocumentMaker.h"
#include "RunFolder.h"
#include "base/Paths.h"
#include "platform/files/Files.h"
#include "rescue/RescueWriter.h"
#include "schema/SEColl.h"

namespace velra::bench {

namespace {

constexpr DocumentPlan kPlan{50'000, 20'000};

void change(DescribedObject& object) {
  SchemaElement* field = object.secol().field("Text7");
  field->setVContent(toText(field->vContent()) + "x");
  field->setBChanged(true);
}

/// Some objects of the document, far from each other.
ObjectList someOf(BenchSession& session) {
  ObjectList some;
  const ObjectList objects = session.document()->collObjects().described();
  for (std::size_t i = 1; i <= 101; ++i) {
    const ObjectRef& object = objects[i * (objects.size() - 1) / 102];
    if (object->kind() != ObjectKind::AVDocument) some.push_back(object);
  }
  return some;
}

ObjectRef longestTranscript(BenchSession& session) {
  for (const ObjectRef& object : session.document()->collObjects().described()) {
    if (object->kind() == ObjectKind::Transcript) return object;
  }
  return nullptr;
}

// What one call takes of the thread that asks; the rest is done behind it.
Times keeping(BenchSession& session, const ObjectList& objects, int repeats) {
  Times times;
  for (int i = 0; i < repeats; ++i) {
    for (const ObjectRef& object : objects) {
      change(*object);
      times.take([&] { session.document()->keepUnsavedWork(); });
      session.app.rescue->finish(std::chrono::seconds(10));
    }
  }
  return times;
}

void saving(BenchSession& session, Times& times) {
  for (const ObjectRef& object : someOf(session)) {
    change(*object);
    times.take([&] { session.document()->bSave(); });
    session.app.rescue->finish(std::chrono::seconds(10));
  }
}

// What a save has to wait for at the least: its plan on the disk, and then its file. A plan takes
// two pages of the store's log.
class TwoWaits {
 public:
  explicit TwoWaits(const std::string& folder)
      : log_(::open((folder + "/two waits.log").c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0644)) {}
  ~TwoWaits() { ::close(log_); }
  TwoWaits(const TwoWaits&) = delete;
  TwoWaits& operator=(const TwoWaits&) = delete;

  bool save(const std::string& path, const std::string& bytes) {
    const std::string plan(kPlanBytes, 'p');
    const bool planned = ::write(log_, plan.data(), plan.size()) > 0 && ::fdatasync(log_) == 0;
    const int file = ::open(path.c_str(), O_WRONLY);
    const bool written = ::write(file, bytes.data(), bytes.size()) > 0 && ::fsync(file) == 0;
    ::close(file);
    return planned && written;
  }

 private:
  static constexpr std::size_t kPlanBytes = 2 * (4096 + 24);
  int log_;
};

// The files of the same objects, each a byte longer, as the change makes them.
void waiting(BenchSession& session, TwoWaits& plain, Times& times) {
  for (const ObjectRef& object : someOf(session)) {
    const std::string path = strAbsolutePath(object->strGUID());
    const std::string bytes = readFile(path).bytes + "\n";
    times.take([&] {
      if (!plain.save(path, bytes)) std::puts("a plain write failed");
    });
  }
}

// In turn, since the disk is quicker at one time than at another.
double costOfSave(BenchSession& session, const std::string& path) {
  TwoWaits plain(folderOf(path));
  Times now;
  Times least;
  for (int round = 0; round < 3; ++round) {
    session.open(path);
    saving(session, now);
    session.close();
    session.open(path);
    waiting(session, plain, least);
    session.close();
  }
  std::printf("a save of one object: %.2f ms, two plain waits for the disk: %.2f\n", now.at(0.5),
              least.at(0.5));
  return now.at(0.5) / least.at(0.5);
}

}  // namespace

std::vector<Measure> measureRescue(const std::string& folder) {
  RunFolder run(folder);
  const std::string path = makeDocument(run.make("document"), kPlan);
  BenchSession session(run.path(), makeSchema(run.path()));
  RescueWriter writer(run.path() + "/state/rescue.sqlite");
  session.app.rescue = &writer;
  session.open(path);
  const Times one = keeping(session, someOf(session), 1);
  const Times transcript = keeping(session, {longestTranscript(session)}, 21);
  session.document()->bSave();
  session.close();
  const double cost = costOfSave(session, path);
  session.app.rescue = nullptr;
  return {
      {"keep one change, the median", one.at(0.5), "ms", 5},
      {"keep one change, 95 of 100", one.p95(), "ms", 5},
      {"keep a transcript of 20,000 words, the median", transcript.at(0.5), "ms", 5},
      {"save one / two plain waits for the disk", cost, "", 2},
  };
}

}  // namespace velra::bench
