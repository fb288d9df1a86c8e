// SPDX-License-Identifier: GPL-3.0-or-later
#include "DocumentMaker.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <utility>
#include <vector>

namespace velra::bench {

namespace {

constexpr int kVideosOfVersion = 20;
constexpr int kAudiosOfVersion = 15;
constexpr int kTranscriptsOfVersion = 8;
constexpr int kMediaOfVersion = 3;
constexpr int kObjectsOfVersion =
    1 + 2 * kMediaOfVersion + kVideosOfVersion + kAudiosOfVersion + kTranscriptsOfVersion;

std::string element(const std::string& name, const std::string& inner,
                    const std::string& attributes = {}) {
  return "<" + name + attributes + ">" + inner + "</" + name + ">";
}

std::string guids(const std::vector<std::string>& list) {
  std::string inner;
  for (const std::string& guid : list) inner += element("GUID", guid);
  return inner;
}

std::string span(int startMs, int endMs) {
  return " start=\"" + std::to_string(startMs) + "\" end=\"" + std::to_string(endMs) +
         "\" reasons=\"0\"";
}

// A few sentences, other ones for each object.
std::string prose(int seed, int sentences) {
  static const char* const kWords[] = {"lighthouse", "keeper",   "harbour", "storm", "café",
                                       "film",       "reel",     "camera",  "night", "signal",
                                       "archive",    "restored", "beam",    "Küste", "island"};
  std::string text;
  unsigned state = static_cast<unsigned>(seed) * 2654435761U + 1;
  for (int i = 0; i < sentences * 9; ++i) {
    state = state * 1664525U + 1013904223U;
    text += kWords[(state >> 16) % std::size(kWords)];
    text += (i + 1) % 9 == 0 ? ". " : " ";
  }
  return text;
}

class Maker {
 public:
  Maker(std::string folder, const DocumentPlan& plan) : folder_(std::move(folder)), plan_(plan) {
    std::filesystem::create_directories(folder_ + "/film_files");
  }

  std::string make() {
    std::vector<std::string> versions;
    if (plan_.segmentsOfOneVersion > 0) {
      versions.push_back(version(plan_.segmentsOfOneVersion));
      if (plan_.segmentsOfAnother > 0) versions.push_back(version(plan_.segmentsOfAnother));
    } else {
      for (int i = 0; i < plan_.objects / kObjectsOfVersion; ++i) versions.push_back(version(0));
    }
    write(folder_ + "/film.xml", "AVDocument",
          element("Title", "film") + element("AVDocGUID", folder_ + "/film.xml") +
              element("Synopsis", prose(1, 6)) + keywords() +
              element("ExpressedBy", guids(versions)));
    return folder_ + "/film.xml";
  }

 private:
  std::string path(const std::string& kind, const char* extension = ".xml") {
    return folder_ + "/film_files/film_" + kind + std::to_string(++counters_[kind]) + extension;
  }

  static void write(const std::string& path, const std::string& root, const std::string& content) {
    std::ofstream(path, std::ios::binary)
        << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<" << root
        << " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""
           " xsi:noNamespaceSchemaLocation=\"bench.xsd\">"
        << content << "</" << root << ">\n";
  }

  // What all objects are described by: about three kilobytes in thirty elements.
  std::string description() {
    const int seed = ++described_;
    std::string text;
    for (int i = 1; i <= 20; ++i) text += element("Text" + std::to_string(i), prose(seed + i, 1));
    std::string set;
    for (int i = 0; i < 5; ++i) set += element("StringItem", "Person " + std::to_string(seed + i));
    text += element("Persons", set) + element("Year", std::to_string(1900 + seed % 100));
    text += element("Shown", "1935-06-0" + std::to_string(1 + seed % 9));
    text += element("Checked", seed % 2 ? "true" : "false") + element("Level", "2.5");
    return text + element("Colour", seed % 2 ? "black and white" : "colour");
  }

  static std::string keywords() {
    return element("Themes", "Sea and Coast") + element("Subthemes", "Lighthouses and Navigation") +
           element("ThematicKeywords", element("StringItem", "Lighthouses"));
  }

  // Of as many Videos and Audios; 0: of the usual numbers.
  std::string version(int many) {
    const std::string guid = path("version");
    std::vector<std::string> medias;
    for (int i = 0; i < kMediaOfVersion; ++i) medias.push_back(media());
    write(guid, "Version",
          element("VersionTitle", "Cut " + std::to_string(counters_["version"])) +
              element("VersionGUID", guid) + element("Duration", "", span(0, 600000)) +
              description() + element("ManifestedBy", guids(medias)));
    expressions("Video", guid, many > 0 ? many : kVideosOfVersion);
    expressions("Audio", guid, many > 0 ? many : kAudiosOfVersion);
    expressions("Transcript", guid, kTranscriptsOfVersion);
    return guid;
  }

  std::string media() {
    const std::string storage = path("storage");
    write(storage, "Storage",
          element("Collocation", plan_.movie
                                     ? std::string(plan_.movie)
                                     : "reel " + std::to_string(counters_["storage"]) + ".mpg") +
              element("StorageGUID", storage) + description());
    const std::string guid = path("media");
    write(guid, "Media",
          element("Format", "MPEG") + element("MediaGUID", guid) + description() +
              element("AvailableAs", guids({storage})));
    return guid;
  }

  // A main expression and its segments, each a second long: every fourth of them has the three that
  // come after it below it, and lasts as long as these.
  void expressions(const std::string& kind, const std::string& version, int count) {
    std::string lower = kind;
    lower[0] = static_cast<char>(lower[0] - 'A' + 'a');
    std::vector<std::string> paths;
    for (int i = 0; i < count; ++i) paths.push_back(path(lower));
    // Some room is left at the end.
    expression(kind, paths[0], version, "", "", 0, count + 100);
    for (int i = 1; i < count; ++i) {
      const bool top = i % 4 == 1;
      const int parent = top ? 0 : i - (i - 1) % 4;
      const int next = top ? i + 4 : i + 1;
      const bool followed = next < count && (top || next % 4 != 1);
      expression(kind, paths[static_cast<std::size_t>(i)], "",
                 paths[static_cast<std::size_t>(parent)],
                 followed ? paths[static_cast<std::size_t>(next)] : "", i, top ? i + 4 : i + 1);
    }
  }

  void expression(const std::string& kind, const std::string& guid, const std::string& version,
                  const std::string& parent, const std::string& next, int place, int end) {
    std::string content = element("Title", kind + " " + std::to_string(place)) +
                          element(kind + "GUID", guid) +
                          element("Time", "", span(place * 1000, end * 1000 - 100));
    if (!version.empty()) content += element("VersionGUID", version);
    if (!parent.empty()) content += element("PartOf" + kind, parent);
    if (!next.empty()) content += element("FollowedBy" + kind, next);
    if (kind == "Video" && !parent.empty()) content += keyFrame(place);
    if (kind == "Transcript") content += words(version);
    write(guid, kind, content + description());
  }

  std::string keyFrame(int place) {
    const std::string picture = path("mediaobject", ".bmp");
    std::string bytes = "BM";
    const auto number = [&](std::uint32_t value, int size) {
      for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i));
    };
    // Headers of a 24-bit bitmap of 4 x 4 pixels.
    for (const std::uint32_t value : {54U + 48U, 0U, 54U, 40U, 4U, 4U}) number(value, 4);
    number(1, 2);
    number(24, 2);
    for (int i = 0; i < 6; ++i) number(i == 1 ? 48 : 0, 4);
    std::ofstream(picture, std::ios::binary) << bytes << std::string(48, '\x40');
    return element("Keyframe", picture, span(place * 1000 + 450, 0));
  }

  std::string words(const std::string& version) {
    const bool first = counters_["version"] == 1 && !version.empty();
    const int count = first && plan_.wordsInOneTranscript > 0 ? plan_.wordsInOneTranscript : 8;
    std::string inner;
    for (int i = 0; i < count; ++i) {
      const std::string times = " start=\"" + std::to_string(i * 300) + "\" end=\"" +
                                std::to_string(i * 300 + 250) + "\"";
      inner += element("Word", "word" + std::to_string(i % 97), times);
    }
    return element("TranscriptWordList", inner);
  }

  std::string folder_;
  DocumentPlan plan_;
  std::map<std::string, int> counters_;
  int described_ = 0;
};

}  // namespace

std::string makeDocument(const std::string& folder, const DocumentPlan& plan) {
  return Maker(folder, plan).make();
}

}  // namespace velra::bench
