// SPDX-License-Identifier: GPL-3.0-or-later

// velra-recover: unsaved work without windows.
#include <cstdio>
#include <string>
#include <vector>

#include "base/Paths.h"
#include "base/Text.h"
#include "rescue/InterruptedSave.h"
#include "rescue/KeptFiles.h"
#include "rescue/KeptWorkList.h"
#include "rescue/Recovery.h"
#include "rescue/RescueStore.h"

namespace {

using namespace velra;

constexpr const char* kUsage = R"(Usage:
  velra-recover --list [DOCUMENT]          what is kept, of one document or of all
  velra-recover --to NEW.xml DOCUMENT      makes a new document of the files and what is kept
  velra-recover --files FOLDER DOCUMENT    writes what is kept, as it is, into a folder
  velra-recover --drop DOCUMENT            drops what is kept of a document
  velra-recover --help | --version

Saves that were cut off are finished first, of whatever document. Else documents are only read.
)";

constexpr int kUsageError = 2;

const char* endOf(const KeptWork& work) {
  switch (fateOf(work)) {
    case Fate::Left:
      return "left without a save";
    case Fate::Error:
      return "ended by an error";
    case Fate::StillOpen:
      return "still open";
    case Fate::Replaced:
      return "files of another program, replaced by a save";
    default:
      return "killed";
  }
}

void say(const std::string& text) {
  std::printf("%s\n", text.c_str());
}

int fail(const std::string& text) {
  std::fprintf(stderr, "%s\n", text.c_str());
  return 1;
}

// All that is kept: of one document, or of all for "".
std::vector<KeptWork> restorable(RescueStore& store, const std::string& document) {
  std::vector<KeptWork> works = restorableWork(store, document);
  std::erase_if(
      works, [&](const KeptWork& work) { return !document.empty() && work.document != document; });
  return works;
}

int list(RescueStore& store, const std::string& document) {
  for (const KeptWork& work : restorable(store, document)) {
    say(work.document + ": " + strWhen(work.changed) + ", " + std::to_string(work.titles.size()) +
        (work.replaced ? " " : " objects, ") + endOf(work));
    for (const std::string& title : work.titles) {
      if (!title.empty()) say("    " + title);
    }
  }
  return 0;
}

int recover(RescueStore& store, const std::string& document, const std::string& newPath) {
  if (asciiLower(strExtension(newPath)) != "xml") {
    return fail("The new document has to end in \".xml\": " + newPath);
  }
  const auto works = keptWork(store, document);
  std::vector<KeptObject> kept;
  if (works.empty()) {
    say("Nothing is kept of " + document + "; the new document is made of its files alone.");
  } else {
    kept = keptObjects(store, works.front().session);
  }
  for (const std::string& path : changedSince(kept)) {
    say(path + " has been changed by another program since; the kept state was taken.");
  }
  const Recovered result = recoverDocument(document, kept, newPath);
  for (const std::string& note : result.notes) say(note);
  if (!result.failure.empty()) return fail(result.failure);
  say(std::to_string(result.files) + " files written: " + newPath);
  return 0;
}

int writeFiles(RescueStore& store, const std::string& document, const std::string& folder) {
  std::size_t files = 0;
  for (const KeptWork& work : restorable(store, document)) {
    const KeptFiles written = writeKeptFiles(keptObjects(store, work), folder);
    if (!written.failure.empty()) return fail(written.failure);
    files += written.files;
  }
  if (files == 0) return fail("Nothing is kept of " + document + ".");
  say(std::to_string(files) + " files written: " + folder);
  return 0;
}

int drop(RescueStore& store, const std::string& document) {
  for (const KeptWork& work : restorable(store, document)) dropKeptWork(store, work);
  return 0;
}

int run(const std::vector<std::string>& words) {
  const std::string command = words.empty() ? "" : words[0];
  if (command == "--help" && words.size() == 1) return std::fputs(kUsage, stdout) < 0 ? 1 : 0;
  if (command == "--version" && words.size() == 1) {
    say("velra-recover " VELRA_VERSION);
    return 0;
  }
  const bool lists = command == "--list" && words.size() <= 2;
  const bool recovers = command == "--to" && words.size() == 3;
  const bool writes = command == "--files" && words.size() == 3;
  const bool drops = command == "--drop" && words.size() == 2;
  if (!lists && !recovers && !writes && !drops) {
    std::fputs(kUsage, stderr);
    return kUsageError;
  }
  RescueStore store(RescueStore::defaultPath());
  const std::string finished = finishInterruptedSaves(store, "");
  if (!finished.empty()) say(finished);
  const std::string document = words.size() > 1 ? strAbsolutePath(words.back()) : "";
  if (lists) return list(store, document);
  if (writes) return writeFiles(store, document, strAbsolutePath(words[1]));
  return recovers ? recover(store, document, strAbsolutePath(words[1])) : drop(store, document);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run({argv + 1, argv + argc});
  } catch (const std::exception& error) {
    return fail(std::string("The store of unsaved work: ") + error.what());
  }
}
