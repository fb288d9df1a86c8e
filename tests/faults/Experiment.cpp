// SPDX-License-Identifier: GPL-3.0-or-later
#include "faults/Experiment.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <exception>
#include <set>

#include "base/Text.h"
#include "objects/MediaObject.h"
#include "platform/files/Files.h"
#include "protocol/VideoExpression.h"
#include "rescue/RescueWriter.h"

namespace velra::test {
namespace {

std::string placeOf(const Expression& segment) {
  const auto span = segment.ckGetChunk();
  if (!span) return {};
  std::string place = " " + numberText(span->dStart) + ".." + numberText(span->dend);
  const auto* video = as<const VideoExpression>(&segment);
  const auto picture = video && segment.objMainExpr() ? video->objKeyframeObject() : nullptr;
  return picture && bFileExists(picture->strGUID()) ? place + " picture" : place;
}

}  // namespace

void Report::complain(const std::string& text) {
  if (text.empty()) return;
  const std::size_t used = std::strlen(trouble);
  std::strncpy(trouble + used, (text + "; ").c_str(), sizeof(trouble) - used - 1);
}

Experiment::Experiment() {
  session.files.smallLadder();
  session.files.storage("storage1", VELRA_SOURCE_DIR "/tests/data/movies/mpeg4-25.avi");
  Shared<Report> report;
  const bool made = ended(start(*report, [&] {
    session.open(session.files.documentPath());
    session.expression("video1")->AddSubExpression("first", 0, 1);
    session.expression("video1")->AddSubExpression("second", 1, 2);
    session.expression("audio1")->AddSubExpression("heard", 3, 4);
    session.document()->bSave();
    session.close();
  }));
  if (!made || report->trouble[0]) throw std::runtime_error(report->trouble);
  atFirst_ = session.folder.snapshot();
}

void Experiment::restore(const std::map<std::string, std::string>& files) {
  for (const auto& entry : std::filesystem::directory_iterator(session.folder.path())) {
    std::filesystem::remove_all(entry.path());
  }
  for (const auto& [name, bytes] : files) session.folder.write(name, bytes);
}

pid_t Experiment::start(Report& report, const std::function<void()>& work) const {
  const pid_t child = ::fork();
  if (child != 0) return child;
  try {
    work();
  } catch (const std::exception& error) {
    report.complain(std::string("the program ends by: ") + error.what());
  }
  ::_exit(0);
}

bool Experiment::ended(pid_t child) {
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void Experiment::read(Report& report, const std::string& path) {
  report.content[0] = '\0';
  if (!bFileExists(path)) return;
  const bool read = ended(start(report, [&] {
    RescueWriter writer(storePath);
    session.app.rescue = &writer;
    std::string told = session.open(path);
    for (const std::string& text : session.takeShown()) told += text;
    if (!told.empty()) report.complain("opening tells: " + told);
    std::strncpy(report.content, contentOf(*session.document()).c_str(),
                 sizeof(report.content) - 1);
    session.close();
  }));
  if (!read) report.complain("the opening was ended");
}

std::string contentOf(AVDocument& document) {
  std::map<const DescribedObject*, std::string> parents;
  std::set<std::string> lines;
  for (const ObjectRef& object : document.collObjects().described()) {
    for (const ObjectRef& child : object->colChilds()) parents[child.get()] = object->strTitle();
  }
  for (const ObjectRef& object : document.collObjects().described()) {
    std::string line = object->className() + " " + object->strTitle();
    if (const auto segment = as<Expression>(object)) {
      const ObjectRef parent =
          segment->objMainExpr() ? ObjectRef(segment->objMainExpr()) : segment->verVersion();
      line += " in " + (parent ? parent->strTitle() : "nothing") + placeOf(*segment);
    } else {
      line += " in " + parents[object.get()];
    }
    lines.insert(line);
  }
  std::string content;
  for (const std::string& line : lines) content += line + "\n";
  return content;
}

}  // namespace velra::test
