// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/IndependentCopy.h"

#include <map>
#include <set>
#include <utility>
#include <vector>

#include "base/Paths.h"
#include "base/Text.h"
#include "platform/files/Files.h"
#include "platform/files/OwnFile.h"
#include "platform/xml/XmlTexts.h"
#include "rescue/ReferenceElements.h"
#include "rescue/TornFile.h"

namespace velra {

namespace {

std::string nameOf(const std::string& path) {
  return path.substr(path.rfind('/') + 1);
}

/// The relative identifiers of a document and of the files in its data folder.
class OwnIdentifiers {
 public:
  explicit OwnIdentifiers(const std::string& document) : document_(strAbsolutePath(document)) {
    std::string above;
    dataFolder_ = strSplitPath(document_, above) + "_files/";
    folder_ = withSeparator(above);
    const auto names = colListFiles(folder_ + dataFolder_ + "*.*");
    names_.insert(names.begin(), names.end());
  }

  std::vector<std::string> paths() const {
    std::vector<std::string> all;
    for (const std::string& name : names_) {
      const std::string path = folder_ + dataFolder_ + name;
      // What a link leads to is not the copy's.
      if (OwnFiles(document_).holds(path)) all.push_back(path);
    }
    all.push_back(document_);  // comes last, as in a save
    return all;
  }

  std::string identifierFor(const std::string& text) const {
    const std::string name = nameOf(text);
    if (names_.contains(name)) return dataFolder_ + name;
    return name == nameOf(document_) ? name : text;
  }

 private:
  std::string document_;
  std::string folder_;
  std::string dataFolder_;  // relative to the folder
  std::set<std::string> names_;
};

}  // namespace

std::string planIndependentCopy(const std::string& document, SavePlan& plan) {
  const OwnIdentifiers own(document);
  const auto replace = [&](std::string_view element, const std::string& text) {
    return holdsIdentifier(element) && !text.empty() ? own.identifierFor(text) : text;
  };
  std::string reason;
  for (const std::string& path : own.paths()) {
    if (asciiLower(strExtension(path)) != "xml") continue;
    const FileStamp stamp = fileStamp(path);
    const FileBytes file = readFile(path);
    RewrittenXml rewritten;
    reason = file.reason;
    if (reason.empty()) {
      rewritten = withTextsReplaced(file.bytes, path, replace);
      reason = rewritten.reason;
    }
    if (reason.empty() && rewritten.bytes != file.bytes) {
      plan.files.push_back({path, std::move(rewritten.bytes), stamp, blocksOf(file.bytes)});
    }
  }
  return reason.empty() ? std::string() : reason + " (" + document + ")";  // that came last
}

std::string writeIndependentCopy(const SavePlan& plan) {
  std::map<std::string, std::string> before;
  std::string failure;
  for (const PlannedFile& file : plan.files) {
    FileBytes old = readFile(file.path);
    std::string reason = old.reason;
    if (reason.empty()) reason = writeFileInPlace(file.path, file.bytes);
    if (reason.empty()) {
      before[file.path] = std::move(old.bytes);
    } else {
      failure = reason + " (" + file.path + ")";
      break;
    }
  }
  if (failure.empty() && !plan.files.empty()) {
    const std::string& document = plan.files.back().path;
    failure = syncFolder(folderOf(document));
  }
  if (failure.empty()) return {};
  for (const auto& [path, bytes] : before) writeFileInPlace(path, bytes);
  return failure;
}

}  // namespace velra
