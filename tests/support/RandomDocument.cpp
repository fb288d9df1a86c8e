// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/RandomDocument.h"

#include <filesystem>
#include <map>

namespace velra::test {

int upTo(std::mt19937& random, int most) {
  return std::uniform_int_distribution<int>(0, most)(random);
}

Damage Damage::some(std::mt19937& random) {
  const auto sometimes = [&] { return upTo(random, 2) == 0; };
  return {sometimes(), sometimes(), sometimes(), sometimes(), sometimes(), sometimes()};
}

namespace {

using Names = std::vector<std::string>;

class Generator {
 public:
  Generator(const DocumentFiles& files, std::mt19937& random, const Damage& damage)
      : files_(files), random_(random), damage_(damage) {}

  Names run() {
    Names versions = newNames("version", 2);
    for (const std::string& version : versions) writeVersion(version);
    files_.document(withDoubles(versions, versions));
    damageFiles();
    if (damage_.strangers) writeStrangers();
    return names_;
  }

 private:
  std::string newName(const std::string& kind) {
    names_.push_back(kind + std::to_string(++numbers_[kind]));
    return names_.back();
  }

  Names newNames(const std::string& kind, int most) {
    Names names;
    for (int count = upTo(random_, most); count >= 0; --count) names.push_back(newName(kind));
    return names;
  }

  /// Sometimes one more reference, to an object of the class that some list has already.
  Names withDoubles(Names names, const Names& known) {
    if (damage_.doubleReferences && !known.empty() && upTo(random_, 1) == 0) {
      names.push_back(known[static_cast<std::size_t>(upTo(random_, int(known.size()) - 1))]);
    }
    return names;
  }

  void writeVersion(const std::string& version) {
    const Names media = newNames("media", 2);
    allMedia_.insert(allMedia_.end(), media.begin(), media.end());
    for (const std::string& name : media) {
      const Names storages = newNames("storage", 2);
      for (const std::string& storage : storages) files_.storage(storage, storage + ".mpg");
      files_.media(name, storages);
    }
    files_.version(version, withDoubles(media, allMedia_));
    for (const char* kind : {"video", "audio", "transcript"}) {
      for (int count = upTo(random_, 2) - 1; count >= 0; --count) writeMain(kind, version);
    }
  }

  void writeMain(const std::string& kind, const std::string& version) {
    const std::string main = newName(kind);
    files_.mainExpression(main, version);
    writeSegments(kind, main, version, 3);
  }

  void writeSegments(const std::string& kind, const std::string& parent, const std::string& version,
                     int levels) {
    Names segments;
    for (int count = upTo(random_, levels) - 1; count >= 0; --count) {
      segments.push_back(newName(kind));
    }
    for (std::size_t i = 0; i < segments.size(); ++i) {
      std::string next = i + 1 < segments.size() ? segments[i + 1] : "";
      if (upTo(random_, 9) == 0) next = segments.front();
      const int start = static_cast<int>(i) * 1000;
      if (damage_.tangledSegments && upTo(random_, 7) == 0) {
        writeTangled(segments[i], parent, version);
      } else {
        files_.segment(segments[i], parent, start, start + 1000, next);
      }
      if (levels > 1) writeSegments(kind, segments[i], version, levels - 1);
    }
  }

  void writeTangled(const std::string& name, const std::string& parent,
                    const std::string& version) {
    const std::string className = DocumentFiles::classOf(name);
    ObjectText object(className);
    object.text("Title", name).text("VersionGUID", files_.id(version)).span("Time", 0, 1);
    object.text("PartOf" + className, files_.id(upTo(random_, 1) == 0 ? parent : name));
    files_.write(name, object);
  }

  void damageFiles() {
    for (const std::string& name : names_) {
      const int draw = upTo(random_, 19);
      if (draw == 0 && damage_.missingFiles) std::filesystem::remove(files_.path(name));
      if (draw == 1 && damage_.wrongClasses) files_.write(name, ObjectText("Media"));
      if (draw == 2 && damage_.brokenFiles) {
        files_.writeRaw("film_" + name + ".xml", "<Video><Title>cut off");
      }
    }
  }

  void writeStrangers() {
    files_.writeRaw("aaa.xml", "<html><body/></html>");
    files_.writeRaw("notes.txt", "no XML at all");
    files_.writeRaw("film_version1.xml.bak", "<Version/>");
    files_.writeRaw("zzz.xml", "<Video><VersionGUID>somewhere else</VersionGUID></Video>");
    if (damage_.brokenFiles) files_.writeRaw("empty.xml", "");
  }

  const DocumentFiles& files_;
  std::mt19937& random_;
  const Damage damage_;
  std::map<std::string, int> numbers_;
  Names names_;
  Names allMedia_;
};

}  // namespace

std::vector<std::string> writeRandomDocument(const DocumentFiles& files, std::mt19937& random,
                                             const Damage& damage) {
  return Generator(files, random, damage).run();
}

}  // namespace velra::test
