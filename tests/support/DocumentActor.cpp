// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/DocumentActor.h"

#include <filesystem>
#include <utility>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "store/IOManager.h"
#include "support/DocumentState.h"
#include "support/SmallSchema.h"

namespace velra::test {

namespace fs = std::filesystem;

namespace {

using Words = std::vector<std::string>;

/// All but the first.
Words rest(Words words) {
  words.erase(words.begin());
  return words;
}

}  // namespace

DocumentActor::DocumentActor() {
  replaced_[session_.folder.path()] = "~";
  replaced_["film_files/film_"] = "";
  session_.files.smallLadder();
  learnFiles();
  learnDocument();
  learnSegments();
  learnToLook();
}

std::vector<std::string> DocumentActor::takeShown() {
  std::vector<std::string> shown = session_.takeShown();
  for (const std::string& text : session_.window.takeStatusTexts()) shown.push_back(text);
  return shown;
}

std::string DocumentActor::filled(std::string text) const {
  for (std::size_t at = 0; (at = text.find('{')) != std::string::npos;) {
    const std::size_t end = text.find('}', at);
    text.replace(at, end + 1 - at, session_.files.id(text.substr(at + 1, end - at - 1)));
  }
  return text;
}

ObjectRef DocumentActor::object(const std::string& name) const {
  ObjectRef found = name == "film" ? session_.app.gAVDoc : session_.object(name);
  if (!found) raise(kNoObject, name);
  return found;
}

ExpressionRef DocumentActor::segment(const std::string& title) const {
  for (const ObjectRef& each : session_.document()->collObjects().described()) {
    const auto expression = as<Expression>(each);
    if (expression && each->strTitle() == title) return expression;
  }
  raise(kNoObject, title);
}

void DocumentActor::learnFiles() {
  const DocumentFiles& files = session_.files;
  verbs_["document"] = [&](auto& text) { files.document(split(text, ' ')); };
  verbs_["version"] = [&](auto& text) {
    files.version(split(text, ' ')[0], rest(split(text, ' ')));
  };
  verbs_["media"] = [&](auto& text) { files.media(split(text, ' ')[0], rest(split(text, ' '))); };
  verbs_["storage"] = [&](auto& text) {  // NAME MOVIE
    files.storage(halves(text, " ").first, filled(halves(text, " ").second));
  };
  verbs_["main"] = [&](auto& text) {
    files.mainExpression(split(text, ' ')[0], split(text, ' ')[1]);
  };
  verbs_["segment"] = [&](auto& text) {  // NAME PARENT START END NEXT
    const Words words = split(text + " ", ' ');
    files.segment(words[0], words[1], std::stoi(words[2]), std::stoi(words[3]), words[4]);
  };
  verbs_["object"] = [&](auto& text) {  // NAME CONTENT
    const auto [name, content] = halves(text, " ");
    files.write(name, ObjectText(DocumentFiles::classOf(name)).raw(filled(content)));
  };
  verbs_["file"] = [&](auto& text) {  // NAME BYTES
    files.writeRaw(halves(text, " ").first, filled(halves(text, " ").second));
  };
  verbs_["move"] = [&](auto& text) {  // FILE to FILE
    const auto [file, to] = halves(text, " to ");
    fs::rename(session_.folder / file, session_.folder / to);
  };
  verbs_["block"] = [&](auto& file) { session_.folder.write(file, "in the way"); };
  verbs_["remove"] = [&](auto& name) { fs::remove(files.path(name)); };
  verbs_["schema"] = [&](auto& text) {  // TEXT -> TEXT
    const auto [declared, changed] = halves(text, " -> ");
    session_.useSchema(replaceAll(kSmallSchema, declared, changed));
  };
}

void DocumentActor::learnDocument() {
  verbs_["open"] = [&](auto&) {
    const std::string message = session_.open(session_.files.documentPath());
    if (!message.empty()) say(message);
    files_ = session_.folder.snapshot();
  };
  verbs_["save"] = [&](auto&) {
    if (!session_.document()->bSave()) say("not saved");
  };
  verbs_["close"] = [&](auto&) { session_.close(); };
  verbs_["title"] = [&](auto& text) {  // NAME TITLE
    object(halves(text, " ").first)->setStrTitle(halves(text, " ").second);
  };
  verbs_["child"] = [&](auto& name) { as<LadderObject>(object(name))->AddChild("new"); };
  verbs_["add-main"] = [&](auto& kind) {
    session_.version("version1")->AddMainExpression("new", kindOfRoot(kind).value(), 0, 1);
  };
  verbs_["forget"] = [&](auto& name) {
    ObjectRef removed = object(name);
    session_.document()->RemoveObject(removed);
  };
  verbs_["up"] = [&](auto& name) {
    const auto io = std::make_shared<IOManager>(session_.app);
    say("document: " + io->strRetrieveAVDocGUIDFromGUID(session_.files.path(name)));
  };
}

void DocumentActor::learnSegments() {
  verbs_["add"] = [&](auto& text) {  // NAME TITLE START END
    const Words words = split(text, ' ');
    as<Expression>(object(words[0]))
        ->AddSubExpression(words[1], std::stod(words[2]), std::stod(words[3]));
  };
  verbs_["cut"] = [&](auto& title) {
    segment(title)->objMainExpr()->RemoveSubExpressionByPointer(segment(title));
  };
  verbs_["cut-number"] = [&](auto& text) {  // NAME NUMBER
    const Words words = split(text, ' ');
    as<Expression>(object(words[0]))->RemoveSubExpressionByIndex(std::stoul(words[1]));
  };
}

void DocumentActor::learnToLook() {
  verbs_["objects"] = [&](auto&) { showObjects(); };
  verbs_["state"] = [&](auto& name) { say(stateOf(*object(name))); };
  verbs_["chain"] = [&](auto& name) { showChain(*session_.expression(name)); };
  verbs_["read"] = [&](auto& file) { say(session_.folder.read(file)); };
  verbs_["files"] = [&](auto&) {  // that differ from the last time
    const auto before = std::exchange(files_, session_.folder.snapshot());
    for (const std::string& change : changedFiles(before, files_)) say(change);
  };
  verbs_["loaded"] = [&](auto&) {
    std::string names;
    for (const char* name : {"version1", "media1", "storage1", "video1", "audio1", "transcript1"}) {
      if (session_.object(name)) names += std::string(names.empty() ? "" : " ") + name;
    }
    say("loaded: " + names);
  };
  verbs_["changed"] = [&](auto&) {
    for (const RegisteredRef& each : session_.document()->collObjects().changedObjects()) {
      say("changed: " + each->strGUID());
    }
  };
}

void DocumentActor::showObjects() {
  ObjectRegistry& objects = session_.document()->collObjects();
  for (const RegisteredRef& each : objects.all()) say(linksOf(*each));
  EXPECT_TRUE(objects.checkConsistency());
  const auto io = session_.document()->io();
  EXPECT_TRUE(!io || io->scans().checkConsistency());
}

/// The segments in the order of their times, each with those that follow it.
void DocumentActor::showChain(const Expression& parent) {
  for (const ExpressionRef& segment : parent.colSubExpressions()) {
    std::string chain;
    ExpressionRef at = segment;
    for (int steps = 0; at && steps < 20; ++steps, at = at->objFollowedBy()) {
      chain += (chain.empty() ? "" : " ") + at->strTitle();
      const ExpressionRef next = at->objFollowedBy();
      EXPECT_TRUE(bSamePath(at->strFollowedBy(), next ? next->strGUID() : "")) << at->strTitle();
    }
    say(chain);
  }
}

}  // namespace velra::test
