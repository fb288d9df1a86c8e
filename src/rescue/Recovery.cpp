// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/Recovery.h"

#include <map>
#include <set>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/files/BitmapCheck.h"
#include "platform/files/Files.h"
#include "platform/xml/XmlTexts.h"
#include "rescue/ReferenceElements.h"
#include "rescue/RescueTables.h"

namespace velra {

namespace {

// Where a document lies, and where its other files do.
struct Layout {
  explicit Layout(const std::string& document) : path(strAbsolutePath(document)) {
    std::string above;
    base = strSplitPath(path, above);
    folder = withSeparator(above);
    dataFolder = folder + base + "_files/";
  }

  std::string path;
  std::string folder;
  std::string base;
  std::string dataFolder;
};

/// The files of a document in memory, and the places to which they go.
class DocumentCopy {
 public:
  DocumentCopy(const std::string& document, const std::string& newPath)
      : from_(document), to_(newPath) {}

  void readFiles();
  void layOver(const std::vector<KeptObject>& kept);
  /// Why the copy could not be written, or "".
  std::string write();

  std::vector<std::string>& notes() { return notes_; }
  std::size_t count() const { return files_.size(); }

 private:
  void read(const std::string& path);
  void choosePlaces();
  std::string freePlaceFor(const std::string& path) const;
  bool isLost(const std::string& path) const;
  std::string textAtNewPlace(std::string_view element, const std::string& text,
                             const std::string& file);
  std::string bytesAtNewPlace(const std::string& path, const std::string& bytes);
  std::string writeFile(const std::string& place, const std::string& bytes);

  const Layout from_;
  const Layout to_;
  std::map<std::string, std::string> files_;   // bytes by absolute path
  std::set<std::string> fresh_;                // of them, those that were kept
  std::map<std::string, std::string> places_;  // absolute path by absolute path
  std::set<std::string> taken_;                // the new places
  std::set<std::string> outside_;              // folders of what does not come along
  std::vector<std::string> made_;              // what has been written so far
  std::vector<std::string> notes_;
};

void DocumentCopy::read(const std::string& path) {
  FileBytes file = readFile(path);
  if (file.reason.empty()) {
    files_[path] = std::move(file.bytes);
  } else {
    notes_.push_back(path + " could not be read: " + file.reason);
  }
}

void DocumentCopy::readFiles() {
  read(from_.path);
  for (const std::string& name : listFiles(from_.dataFolder + "*.*").names) {
    if (name.starts_with(from_.base + "_")) read(from_.dataFolder + name);
  }
}

void DocumentCopy::layOver(const std::vector<KeptObject>& kept) {
  for (const KeptObject& object : kept) {
    if (object.removed) {
      files_.erase(object.path);
    } else {
      files_[object.path] = object.bytes;
      fresh_.insert(object.path);
    }
  }
}

std::string DocumentCopy::freePlaceFor(const std::string& path) const {
  std::string name = path.substr(path.rfind('/') + 1);
  if (path == from_.path) return to_.path;
  if (name.starts_with(from_.base + "_")) name = name.substr(from_.base.size() + 1);
  std::string place = to_.dataFolder + to_.base + "_" + name;
  // An object of another folder may have the name of one of the own.
  for (int i = 2; taken_.contains(place); ++i) {
    place = to_.dataFolder + to_.base + "_" + std::to_string(i) + "_" + name;
  }
  return place;
}

void DocumentCopy::choosePlaces() {
  for (const auto& [path, bytes] : files_) {
    places_[path] = freePlaceFor(path);
    taken_.insert(places_[path]);
  }
}

// A document whose key frame has no picture that can be read does not open.
bool DocumentCopy::isLost(const std::string& path) const {
  if (fresh_.contains(path)) return false;
  try {
    checkBitmap(path);
    return false;
  } catch (const RunTimeError&) {
    return true;
  }
}

// What is relative and does not come along has to be found from another folder, too.
std::string DocumentCopy::textAtNewPlace(std::string_view element, const std::string& text,
                                         const std::string& file) {
  const bool refers = holdsIdentifier(element);
  if (text.empty() || (!refers && !holdsMoviePath(element))) return text;
  const std::string path = strAbsolutePath(text, from_.folder);
  if (holdsKeyFrame(element) && isLost(path)) {
    notes_.push_back(path + " is no picture; the key frame is made anew from the movie (" + file +
                     ").");
    return {};
  }
  const auto place = places_.find(path);
  if (refers && place != places_.end()) return place->second;
  // What a file says of its own place does not count.
  if (refers && strFileName(path) != strFileName(file)) outside_.insert(folderOf(path));
  return text.starts_with('/') || to_.folder == from_.folder ? text : path;
}

std::string DocumentCopy::bytesAtNewPlace(const std::string& path, const std::string& bytes) {
  if (asciiLower(strExtension(path)) != "xml") return bytes;
  const RewrittenXml rewritten =
      withTextsReplaced(bytes, path, [&](std::string_view element, const std::string& text) {
        return textAtNewPlace(element, text, path);
      });
  if (rewritten.reason.empty()) return rewritten.bytes;
  notes_.push_back(path + " was taken as it stands: " + rewritten.reason);
  return bytes;
}

std::string DocumentCopy::writeFile(const std::string& place, const std::string& bytes) {
  const std::string reason = writeNewFile(place, bytes);
  if (reason.empty()) made_.push_back(place);
  return reason.empty() ? std::string() : reason + " (" + place + ")";
}

std::string DocumentCopy::write() {
  if (!files_.contains(from_.path)) return "The document's own file is neither there nor kept.";
  choosePlaces();
  makeFolders(to_.dataFolder);
  std::string failure;
  std::string document;  // comes last, so that it never names a file that is not there
  for (const auto& [path, bytes] : files_) {
    std::string rewritten = bytesAtNewPlace(path, bytes);
    if (path == from_.path) {
      document = std::move(rewritten);
    } else if (failure.empty()) {
      failure = writeFile(places_[path], rewritten);
    }
  }
  for (const std::string& folder : outside_) {
    notes_.push_back("The new document still refers to files in " + folder + ".");
  }
  if (failure.empty()) failure = writeFile(to_.path, document);
  if (failure.empty()) failure = syncFolder(to_.folder);
  if (failure.empty()) return {};
  for (const std::string& place : made_) deleteFile(place);
  removeFolderIfEmpty(to_.dataFolder);
  return failure;
}

}  // namespace

std::vector<std::string> changedSince(const std::vector<KeptObject>& kept) {
  std::vector<std::string> changed;
  for (const KeptObject& object : kept) {
    if (object.stamp.exists && keptStamp(object.path) != object.stamp) {
      changed.push_back(object.path);
    }
  }
  return changed;
}

Recovered recoverDocument(const std::string& document, const std::vector<KeptObject>& kept,
                          const std::string& newPath) {
  DocumentCopy copy(document, newPath);
  copy.readFiles();
  copy.layOver(kept);
  Recovered result;
  result.failure = copy.write();
  result.files = copy.count();
  result.notes = std::move(copy.notes());
  return result;
}

std::string proposedRecoveryPath(const std::string& document) {
  const Layout layout(document);
  return layout.folder + layout.base + "-recovered.xml";
}

}  // namespace velra
