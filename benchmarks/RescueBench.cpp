// SPDX-License-Identifier: GPL-3.0-or-later
#include "RescueBench.h"

#include <algorithm>
#include <chrono>

#include "BenchSchema.h"
#include "BenchSession.h"
#include "DocumentMaker.h"
#include "RunFolder.h"
#include "WholeSync.h"
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
    if (session.app.rescue) session.app.rescue->finish(std::chrono::seconds(10));
  }
}

// Beside a save as it was before there was a store. In turn, since the disk is quicker at one time
// than at another.
double costOfSave(BenchSession& session, const std::string& path, RescueWriter& writer) {
  Times now;
  Times before;
  for (int round = 0; round < 3; ++round) {
    session.app.rescue = nullptr;
    session.open(path);
    {
      const WholeSync asBefore;
      saving(session, before);
    }
    session.close();
    session.app.rescue = &writer;
    session.open(path);
    saving(session, now);
    session.close();
  }
  return now.at(0.5) / before.at(0.5);
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
  const double cost = costOfSave(session, path, writer);
  session.app.rescue = nullptr;
  return {
      {"keep one change, the median", one.at(0.5), "ms", 5},
      {"keep one change, 95 of 100", one.p95(), "ms", 5},
      {"keep a transcript of 20,000 words, the median", transcript.at(0.5), "ms", 5},
      {"save one / as before there was a store", cost, "", 2},
  };
}

}  // namespace velra::bench
