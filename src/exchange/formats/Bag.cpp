// SPDX-License-Identifier: GPL-3.0-or-later

// A BagIt 1.0 bag (RFC 8493) of the document, its data folder and, if wanted, its movies.
#include <ctime>
#include <filesystem>
#include <map>
#include <set>
#include <string_view>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "exchange/BagCheck.h"
#include "exchange/ContentText.h"
#include "exchange/ExchangeFailure.h"
#include "exchange/ExportFormats.h"
#include "exchange/UnfinishedBag.h"
#include "platform/files/Digest.h"
#include "platform/files/Files.h"
#include "platform/xml/XmlTexts.h"
#include "rescue/ReferenceElements.h"

namespace velra {

namespace {

namespace fs = std::filesystem;

class BagWriter {
 public:
  BagWriter(const Content& content, const ExportOptions& options)
      : content_(content), folder_(folderOf(content.path)), bag_(options.output) {
    std::string above;
    dataFolder_ = strSplitPath(content.path, above) + "_files";
    if (options.movies) chooseMovies();
  }

  Exported write() {
    for (const ContentObject& object : content_.objects) addObject(object);
    addOthers();
    for (const auto& [movie, place] : movies_) add(movie, place);
    const std::size_t payload = files_.size();
    writeManifests("manifest-", files_);
    writeInfo();
    writeManifests("tagmanifest-", tags_);
    bag_.finish();
    notes_.insert(notes_.begin(),
                  std::to_string(payload) + " files, " + std::to_string(bytes_) + " bytes.");
    return {"", notes_};
  }

 private:
  // Movies of one name in several folders get a number.
  void chooseMovies() {
    std::set<std::string> taken;
    for (const ContentObject& object : content_.objects) {
      if (object.kind != ObjectKind::Storage || object.movie.empty()) continue;
      if (movies_.contains(object.movie)) continue;
      if (!bFileExists(object.movie)) {
        notes_.push_back("The movie " + object.movie + " is not there and left out.");
        continue;
      }
      const std::string name = object.movie.substr(object.movie.rfind('/') + 1);
      std::string place = "movies/" + name;
      for (int i = 2; !taken.insert(place).second; ++i) {
        place = "movies/" + std::to_string(i) + '_' + name;
      }
      movies_[object.movie] = place;
    }
  }

  bool isInside(const std::string& path) const {
    return path == content_.path || path.starts_with(folder_ + dataFolder_ + '/');
  }

  // Where a path that an object names leads in the bag, from the document's folder on.
  std::string inBag(const std::string& text) const {
    if (text.empty() || text.find('\n') != std::string::npos) return text;
    const std::string path = strAbsolutePath(text, folder_);
    if (const auto movie = movies_.find(path); movie != movies_.end()) return movie->second;
    return isInside(path) && bFileExists(path) ? path.substr(folder_.size()) : text;
  }

  void addObject(const ContentObject& object) {
    const std::string path = content_.fileOf(object);
    if (!isInside(path)) {
      notes_.push_back(path + " lies outside of the document's folders and is left out.");
      return;
    }
    const FileBytes file = readFile(path);
    bool moved = false;
    const RewrittenXml rewritten = withTextsReplaced(
        file.bytes, path, [&](std::string_view name, const std::string& text) -> std::string {
          // A path in any other field is a person's own words.
          if (!holdsIdentifier(name) && !holdsMoviePath(name)) return text;
          std::string place = inBag(text);
          moved = moved || place != text;
          return place;
        });
    const std::string& reason = file.reason.empty() ? rewritten.reason : file.reason;
    if (!reason.empty()) throw ExchangeFailure(path + ": " + reason);
    const std::string name = path.substr(folder_.size());
    bag_.write("data/" + name, moved ? rewritten.bytes : file.bytes);
    note("data/" + name, files_);
  }

  void addOthers() {
    std::error_code failed;
    fs::directory_iterator at(folder_ + dataFolder_, failed);
    for (; !failed && at != fs::directory_iterator(); at.increment(failed)) {
      const std::string name = dataFolder_ + '/' + at->path().filename().string();
      if (!at->is_regular_file() || files_.contains("data/" + name)) continue;
      add(at->path(), name);
    }
    if (failed && bFolderExists(folder_ + dataFolder_)) {
      throw ExchangeFailure(dataFolder_ + ": " + systemReason(failed.value()));
    }
  }

  void add(const std::string& source, const std::string& name) {
    bag_.copy(source, "data/" + name);
    note("data/" + name, files_);
  }

  void note(const std::string& name, std::map<std::string, FileDigests>& files) {
    FileDigests digests = digestsOf(bag_ / name);
    if (!digests.reason.empty()) throw ExchangeFailure(name + ": " + digests.reason);
    if (&files == &files_) bytes_ += digests.bytes;
    files[name] = std::move(digests);
  }

  void writeManifests(const std::string& prefix, const std::map<std::string, FileDigests>& files) {
    std::string sha256;
    std::string sha512;
    for (const auto& [name, digests] : files) {
      sha256 += digests.sha256 + "  " + manifestPath(name) + '\n';
      sha512 += digests.sha512 + "  " + manifestPath(name) + '\n';
    }
    writeTag(prefix + "sha256.txt", sha256);
    writeTag(prefix + "sha512.txt", sha512);
  }

  void writeTag(const std::string& name, const std::string& text) {
    bag_.write(name, text);
    if (!name.starts_with("tagmanifest")) note(name, tags_);
  }

  void writeInfo() {
    writeTag("bagit.txt", "BagIt-Version: 1.0\nTag-File-Character-Encoding: UTF-8\n");
    const std::time_t now = std::time(nullptr);
    std::tm day{};
    char date[16] = "";
    if (gmtime_r(&now, &day)) std::strftime(date, sizeof date, "%Y-%m-%d", &day);
    writeTag("bag-info.txt",
             "Bag-Software-Agent: velra-exchange\nBagging-Date: " + std::string(date) +
                 "\nPayload-Oxum: " + std::to_string(bytes_) + '.' + std::to_string(files_.size()) +
                 "\nExternal-Description: " + oneLine(content_.document().title) + '\n');
  }

  const Content& content_;
  std::string folder_;      // of the document, with its separator
  std::string dataFolder_;  // its name
  UnfinishedBag bag_;
  std::map<std::string, std::string> movies_;  // places in data/ by absolute path
  std::map<std::string, FileDigests> files_;   // of the payload, by path in the bag
  std::map<std::string, FileDigests> tags_;
  std::uint64_t bytes_ = 0;
  std::vector<std::string> notes_;
};

Exported writeBag(const Content& content, const ExportOptions& options) {
  try {
    return BagWriter(content, options).write();
  } catch (const RunTimeError& error) {
    throw ExchangeFailure(error.description());
  }
}

}  // namespace

const ExportFormat kBagFormat{
    "bag",    "BagIt",  "bag", "the files of the document as a bag, BagIt 1.0",
    "movies", writeBag, true};

}  // namespace velra
