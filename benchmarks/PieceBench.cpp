// SPDX-License-Identifier: GPL-3.0-or-later
#include "PieceBench.h"

#include <benchmark/benchmark.h>

#include <memory>

#include "BenchSchema.h"
#include "BenchSession.h"
#include "DocumentMaker.h"
#include "RunFolder.h"
#include "base/Paths.h"
#include "forms/FormTabs.h"
#include "platform/xml/XmlDocument.h"
#include "platform/xml/XmlShell.h"
#include "platform/xml/XmlWriter.h"
#include "schema/InstanceWriter.h"
#include "schema/SEColl.h"
#include "schema/SchemaFile.h"
#include "store/ObjectRegistry.h"
#include "values/TimeCode.h"

namespace velra::bench {

namespace {

using benchmark::DoNotOptimize;
using benchmark::State;

/// A document of 1,000 objects, and one of its segments.
struct Sample {
  explicit Sample(RunFolder& run) : session(run.path(), makeSchema(run.path())) {
    session.open(makeDocument(run.make("pieces"), {1000, 0}));
    for (const ObjectRef& object : session.document()->collObjects().described()) {
      if (object->kind() == ObjectKind::Audio) segment = object;
    }
  }

  BenchSession session;
  ObjectRef segment;
};

void normalForm(State& state) {
  for ([[maybe_unused]] auto each : state) {
    DoNotOptimize(strAbsolutePath("film_files/./../film_files/film_video123.xml"));
  }
}

void lookUp(State& state, Sample& sample) {
  const std::string guid = sample.segment->strGUID();
  for ([[maybe_unused]] auto each : state) {
    DoNotOptimize(sample.session.document()->loadedObject(guid));
  }
}

void readInstance(State& state, Sample& sample) {
  AVDocument& document = *sample.session.document();
  const DocumentSchemas::Hold hold(document.shared().schemas);
  const std::string path = sample.segment->strGUID();
  for ([[maybe_unused]] auto each : state) {
    XmlDocument parsed;
    parsed.load(path);
    InstanceDocument shell;
    std::shared_ptr<const SchemaFile> schema;
    SEColl fields(sample.session.app, document.shared());
    DoNotOptimize(fields.strLoadParsed(shell, parsed, schema, sample.segment->className()));
  }
}

void writeInstance(State& state, Sample& sample) {
  const SEColl& secol = sample.segment->secol();
  XmlDocument parsed;
  parsed.load(sample.segment->strGUID());
  const InstanceDocument shell(std::make_shared<const XmlShell>(parsed.shellText()));
  for ([[maybe_unused]] auto each : state) {
    DoNotOptimize(secol.fileBytes(shell));
  }
}

// A set as a form takes it out of its field and puts it back.
void setOfStrings(State& state, Sample& sample) {
  SchemaElement& field = *sample.segment->secol().field("Persons");
  for ([[maybe_unused]] auto each : state) {
    StringList members = *asList(field.vContent());
    members.emplace_back("one more person");
    members.pop_back();
    field.setVContent(std::move(members));
  }
}

void numberedCaption(State& state) {
  const FormTabs tabs = FormTabs::behindOwnTab("Video", 400);
  for ([[maybe_unused]] auto each : state) DoNotOptimize(tabs.caption(23));
}

void timeCode(State& state) {
  for ([[maybe_unused]] auto each : state) {
    DoNotOptimize(timeCodeText(SplitTimeCode(3725.48, 25)));
  }
}

}  // namespace

std::vector<Measure> measurePieces(const std::string& folder) {
  RunFolder run(folder);
  Sample sample(run);
  benchmark::RegisterBenchmark("normal form of a path", normalForm);
  benchmark::RegisterBenchmark("look-up in the registry",
                               [&](State& state) { lookUp(state, sample); });
  benchmark::RegisterBenchmark("read one instance file",
                               [&](State& state) { readInstance(state, sample); });
  benchmark::RegisterBenchmark("write one instance",
                               [&](State& state) { writeInstance(state, sample); });
  benchmark::RegisterBenchmark("set of strings out and in",
                               [&](State& state) { setOfStrings(state, sample); });
  benchmark::RegisterBenchmark("numbered caption", numberedCaption);
  benchmark::RegisterBenchmark("time code of a time", timeCode);
  benchmark::ConsoleReporter reporter(benchmark::ConsoleReporter::OO_None);
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::ClearRegisteredBenchmarks();
  return {};
}

}  // namespace velra::bench
