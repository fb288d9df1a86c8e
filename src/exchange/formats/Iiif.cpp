// SPDX-License-Identifier: GPL-3.0-or-later

// A manifest of the IIIF Presentation API, version 3.
#include <algorithm>
#include <utility>

#include "base/Paths.h"
#include "exchange/ContentText.h"
#include "exchange/Cues.h"
#include "exchange/ExchangeFailure.h"
#include "exchange/ExportFormats.h"
#include "exchange/ManifestParts.h"
#include "exchange/SegmentChoice.h"
#include "platform/movie/MovieFacts.h"

namespace velra {

namespace {

class ManifestWriter {
 public:
  ManifestWriter(const Content& content, const ExportOptions& options)
      : content_(content), base_(options.base) {
    std::string folder;
    const std::string name = strSplitPath(content.path, folder);
    if (base_.empty()) base_ = "https://example.org/" + uriPath(name);
  }

  Exported write() {
    ManifestJson manifest{{"@context", "http://iiif.io/api/presentation/3/context.json"},
                          {"id", base_ + "/manifest.json"},
                          {"type", "Manifest"},
                          {"label", inNoLanguage(content_.document().title)}};
    addMetadata(content_.document(), manifest);
    ManifestJson canvases = ManifestJson::array();
    for (const ContentObject* version : content_.below(content_.document())) {
      if (lengthOf(*version) > 0) canvases.push_back(canvasOf(*version));
    }
    if (canvases.empty()) throw ExchangeFailure("No Version tells how long it is.");
    const std::size_t count = canvases.size();
    manifest["items"] = std::move(canvases);
    if (!ranges_.empty()) manifest["structures"] = std::move(ranges_);
    return {manifest.dump(2, ' ', false, ManifestJson::error_handler_t::replace) + '\n',
            {std::to_string(count) + " canvases, " + std::to_string(rangeCount_) + " ranges."}};
  }

 private:
  static void addMetadata(const ContentObject& object, ManifestJson& entry) {
    ManifestJson metadata = metadataOf(object);
    if (!metadata.empty()) entry["metadata"] = std::move(metadata);
  }

  // Seconds; 0 when nothing tells.
  double lengthOf(const ContentObject& version) const {
    const ContentField* duration = version.field("Duration");
    double length = duration && duration->span ? duration->span->end : 0;
    for (const ContentObject* main : content_.below(version)) {
      if (main->time) length = std::max(length, main->time->end);
    }
    return static_cast<double>(milliseconds(length)) / 1000;
  }

  ManifestJson canvasOf(const ContentObject& version) {
    length_ = lengthOf(version);
    canvas_ = base_ + "/canvas/" + std::to_string(version.number);
    const MovieFacts facts = version.movie.empty() ? MovieFacts() : movieFacts(version.movie);
    ManifestJson canvas{{"id", canvas_},
                        {"type", "Canvas"},
                        {"label", inNoLanguage(version.title)},
                        {"duration", length_}};
    addSize(facts, canvas);
    addMetadata(version, canvas);
    canvas["items"] = ManifestJson::array();
    if (!version.movie.empty()) canvas["items"].push_back(paintingPage(version, facts));
    ExportOptions options;
    options.version = version.number;
    const std::vector<Cue> cues = cuesOf(spokenWords(content_, options));
    if (!cues.empty()) canvas["annotations"] = inList(transcriptPage(cues));
    addRanges(version);
    return canvas;
  }

  static void addSize(const MovieFacts& facts, ManifestJson& entry) {
    if (facts.width <= 0 || facts.height <= 0) return;
    entry["width"] = facts.width;
    entry["height"] = facts.height;
  }

  std::string addressOf(const std::string& path) const {
    const std::string folder = folderOf(content_.path);
    return base_ + '/' +
           uriPath(path.starts_with(folder) ? path.substr(folder.size())
                                            : path.substr(path.rfind('/') + 1));
  }

  ManifestJson paintingPage(const ContentObject& version, const MovieFacts& facts) const {
    const bool soundOnly = !facts.soundCoding.empty() && facts.pictureCoding.empty();
    ManifestJson body{{"id", addressOf(version.movie)},
                      {"type", soundOnly ? "Sound" : "Video"},
                      {"duration", length_}};
    if (!facts.mimeType.empty()) body["format"] = facts.mimeType;
    addSize(facts, body);
    const std::string page = canvas_ + "/movie";
    ManifestJson annotation{{"id", page + "/1"},
                            {"type", "Annotation"},
                            {"motivation", "painting"},
                            {"body", std::move(body)},
                            {"target", canvas_}};
    return {{"id", page}, {"type", "AnnotationPage"}, {"items", inList(std::move(annotation))}};
  }

  std::string partOfCanvas(double start, double end) const {
    return canvas_ + "#t=" + secondsText(std::min(start, length_)) + ',' +
           secondsText(std::min(end, length_));
  }

  ManifestJson transcriptPage(const std::vector<Cue>& cues) const {
    const std::string page = canvas_ + "/transcript";
    ManifestJson items = ManifestJson::array();
    for (const Cue& cue : cues) {
      std::string text;
      for (const std::string& line : cue.lines) text += (text.empty() ? "" : "\n") + line;
      items.push_back(
          {{"id", page + '/' + std::to_string(items.size() + 1)},
           {"type", "Annotation"},
           {"motivation", "supplementing"},
           {"body", {{"type", "TextualBody"}, {"value", text}, {"format", "text/plain"}}},
           {"target", partOfCanvas(cue.start, cue.end)}});
    }
    return {{"id", page}, {"type", "AnnotationPage"}, {"items", std::move(items)}};
  }

  void addRanges(const ContentObject& version) {
    for (const ContentObject* main : content_.below(version)) {
      if (!isExpression(main->kind) || content_.below(*main).empty()) continue;
      ranges_.push_back(rangeOf(*main));
    }
  }

  ManifestJson rangeOf(const ContentObject& expression) {
    ++rangeCount_;
    ManifestJson range{{"id", base_ + "/range/" + std::to_string(rangeCount_)},
                       {"type", "Range"},
                       {"label", inNoLanguage(expression.title)}};
    addMetadata(expression, range);
    if (!expression.picture.empty()) {
      range["thumbnail"] = inList(
          {{"id", addressOf(expression.picture)}, {"type", "Image"}, {"format", "image/bmp"}});
    }
    ManifestJson items = ManifestJson::array();
    const ContentSpan time = expression.time.value_or(ContentSpan{0, length_});
    items.push_back({{"type", "Canvas"}, {"id", partOfCanvas(time.start, time.end)}});
    for (const ContentObject* segment : content_.below(expression)) {
      items.push_back(rangeOf(*segment));
    }
    range["items"] = std::move(items);
    return range;
  }

  const Content& content_;
  std::string base_;
  std::string canvas_;  // the address of the one that is written
  double length_ = 0;   // of its Version, in seconds
  ManifestJson ranges_ = ManifestJson::array();
  int rangeCount_ = 0;
};

Exported writeManifest(const Content& content, const ExportOptions& options) {
  return ManifestWriter(content, options).write();
}

}  // namespace

const ExportFormat kManifestFormat{"iiif", "IIIF Presentation 3",
                                   "json", "a manifest for viewers on the web, IIIF Presentation 3",
                                   "base", writeManifest};

}  // namespace velra
