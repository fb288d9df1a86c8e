// SPDX-License-Identifier: GPL-3.0-or-later

// PBCore 2.1: the document as an asset, its stored copies as instantiations, expressions as parts.
#include <algorithm>

#include "base/Text.h"
#include "exchange/ContentText.h"
#include "exchange/Copies.h"
#include "exchange/ExportFormats.h"
#include "exchange/Mapping.h"
#include "exchange/PbCoreElements.h"
#include "platform/xml/XmlStream.h"

namespace velra {

namespace {

class PbCoreWriter {
 public:
  PbCoreWriter(const Content& content, const ExportOptions& options)
      : content_(content), mapping_(content, options, "pbcore", pbCoreKnows) {}

  Exported write() {
    const ContentObject& document = content_.document();
    xml_.open("pbcoreDescriptionDocument",
              {{"xmlns", "http://www.pbcore.org/PBCore/PBCoreNamespace.html"},
               {"xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance"},
               {"xsi:schemaLocation",
                "http://www.pbcore.org/PBCore/PBCoreNamespace.html "
                "https://raw.githubusercontent.com/PBCore-AV-Metadata/PBCore_2.1/master/"
                "pbcore-2.1.xsd"}});
    writeAsset(document);
    xml_.close();
    Exported exported{xml_.take(), {}};
    exported.notes.push_back(std::to_string(instantiations_) + " instantiations, " +
                             std::to_string(parts_) + " parts.");
    exported.notes.push_back(std::to_string(extensions_) +
                             " values of fields without an element stand in extensions.");
    return exported;
  }

 private:
  void writeAsset(const ContentObject& object) {
    MappedValues values = mapping_.valuesOf(object);
    values.insert(values.begin(), {"identifier", "velra", object.identifier, ""});
    // The standard wants both.
    ensure("title", object.title.empty() ? "-" : object.title, values);
    ensure("description", "-", values);
    PbCoreElements elements(kPbCoreAsset, values, xml_);
    elements.putUpTo("genre");
    for (const ContentObject* version : content_.below(object)) {
      if (version->kind == ObjectKind::Version) relate(*version);
    }
    elements.putUpTo("rights");
    for (const ContentObject* version : content_.below(object)) {
      if (version->kind != ObjectKind::Version) continue;
      for (const Copy& copy : copiesOf(content_, *version)) writeInstantiation(copy);
    }
    elements.putUpTo("annotation");
    writeParts(object);
    extend(object, "pbcoreExtension");
  }

  static void ensure(const std::string& element, const std::string& text, MappedValues& values) {
    const bool there = std::any_of(values.begin(), values.end(), [&](const MappedValue& value) {
      return value.element == element;
    });
    if (!there) values.push_back({element, "", text, ""});
  }

  void relate(const ContentObject& version) {
    xml_.open("pbcoreRelation");
    xml_.element("pbcoreRelationType", "Has Version");
    xml_.element("pbcoreRelationIdentifier", version.identifier, {{"annotation", version.title}});
    xml_.close();
  }

  void writeInstantiation(const Copy& copy) {
    ++instantiations_;
    const ContentObject& itself = copy.itself();
    const MovieFacts& facts = copy.facts;
    MappedValues values{{"identifier", "velra", itself.identifier, ""}};
    for (const ContentObject* object : copy.ladder) {
      const MappedValues more = mapping_.valuesOf(*object);
      values.insert(values.end(), more.begin(), more.end());
    }
    PbCoreElements elements(kPbCoreInstantiation, values, xml_);
    xml_.open("pbcoreInstantiation");
    elements.putUpTo("physical");
    element("instantiationDigital", facts.mimeType);
    xml_.element("instantiationLocation", itself.movie.empty() ? "-" : itself.movie);
    element("instantiationMediaType", facts.pictureCoding.empty() ? "" : "Moving Image");
    elements.putUpTo("generations");
    number("instantiationFileSize", static_cast<double>(facts.bytes), "bytes");
    if (const ContentField* duration = copy.ladder.front()->field("Duration");
        duration && duration->span) {
      xml_.element("instantiationDuration", clockText(duration->span->end));
    }
    number("instantiationDataRate", static_cast<double>(facts.bitRate), "bits/second");
    elements.putUpTo("colors");
    writeTracks(facts);
    elements.putUpTo("annotation");
    for (const ContentObject* object : copy.ladder) extend(*object, "instantiationExtension");
    xml_.close();
  }

  void element(const char* name, const std::string& text) {
    if (!text.empty()) xml_.element(name, text);
  }
  void number(const char* name, double value, const char* unit) {
    if (value > 0) xml_.element(name, numberText(value), {{"unitsOfMeasure", unit}});
  }

  void writeTracks(const MovieFacts& facts) {
    if (!facts.pictureCoding.empty()) {
      xml_.open("instantiationEssenceTrack");
      xml_.element("essenceTrackType", "Video");
      xml_.element("essenceTrackEncoding", facts.pictureCoding);
      number("essenceTrackDataRate", static_cast<double>(facts.pictureBitRate), "bits/second");
      number("essenceTrackFrameRate", facts.rate, "fps");
      xml_.element("essenceTrackFrameSize",
                   std::to_string(facts.width) + 'x' + std::to_string(facts.height));
      xml_.close();
    }
    if (!facts.soundCoding.empty()) {
      xml_.open("instantiationEssenceTrack");
      xml_.element("essenceTrackType", "Audio");
      xml_.element("essenceTrackEncoding", facts.soundCoding);
      number("essenceTrackDataRate", static_cast<double>(facts.soundBitRate), "bits/second");
      number("essenceTrackSamplingRate", facts.sampleRate, "Hz");
      xml_.close();
    }
  }

  void writeParts(const ContentObject& object) {
    for (const ContentObject* child : content_.below(object)) {
      // Versions are no parts, but what they express is one.
      if (child->kind == ObjectKind::Version) writeParts(*child);
      if (!isExpression(child->kind)) continue;
      ++parts_;
      XmlAttributes attributes{{"partType", classNameOf(child->kind)}};
      if (child->time) {
        attributes.emplace_back("startTime", clockText(child->time->start));
        attributes.emplace_back("endTime", clockText(child->time->end));
      }
      xml_.open("pbcorePart", attributes);
      writeAsset(*child);
      xml_.close();
    }
  }

  void extend(const ContentObject& object, const char* tag) {
    for (const auto& [field, text] : mapping_.unmapped(object)) {
      ++extensions_;
      xml_.open(tag);
      xml_.open("extensionWrap");
      xml_.element("extensionElement", field);
      xml_.element("extensionValue", text);
      xml_.element("extensionAuthorityUsed", "velra");
      xml_.close();
      xml_.close();
    }
  }

  const Content& content_;
  Mapping mapping_;
  XmlStream xml_;
  std::size_t instantiations_ = 0;
  std::size_t parts_ = 0;
  std::size_t extensions_ = 0;
};

Exported writePbCore(const Content& content, const ExportOptions& options) {
  return PbCoreWriter(content, options).write();
}

}  // namespace

const ExportFormat kPbCoreFormat{"pbcore",     "PBCore 2.1",
                                 "pbcore.xml", "a record for archives, PBCore 2.1",
                                 "mapping",    writePbCore};

}  // namespace velra
