// SPDX-License-Identifier: GPL-3.0-or-later

// EBUCore 1.10: the document, its stored copies as formats, expressions as parts inside one
// another.
#include "exchange/Copies.h"
#include "exchange/EbuCoreElements.h"
#include "exchange/EbuCoreTechnique.h"
#include "exchange/ExportFormats.h"
#include "exchange/Mapping.h"
#include "platform/xml/XmlStream.h"

namespace velra {

namespace {

class EbuCoreWriter {
 public:
  EbuCoreWriter(const Content& content, const ExportOptions& options)
      : content_(content), mapping_(content, options, "ebucore", ebuCoreKnows) {}

  Exported write() {
    xml_.open("ebucore:ebuCoreMain",
              {{"xmlns:ebucore", "urn:ebu:metadata-schema:ebucore"},
               {"xmlns:dc", "http://purl.org/dc/elements/1.1/"},
               {"xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance"},
               {"xsi:schemaLocation",
                "urn:ebu:metadata-schema:ebucore "
                "https://www.ebu.ch/metadata/schemas/EBUCore/20200805/ebucore.xsd"},
               {"version", "1.10"},
               {"writingLibraryName", "velra"}});
    xml_.open("ebucore:coreMetadata");
    writeCore(content_.document());
    xml_.close();
    xml_.close();
    Exported exported{xml_.take(), {}};
    exported.notes.push_back(std::to_string(formats_) + " formats, " + std::to_string(parts_) +
                             " parts.");
    exported.notes.push_back(std::to_string(extensions_) +
                             " values of fields without an element stand in technical attributes.");
    return exported;
  }

 private:
  void writeCore(const ContentObject& object) {
    const std::vector<MappedValue> values = mapping_.valuesOf(object);
    EbuCoreElements elements(values, xml_);
    elements.putUpTo("type");
    const auto below = content_.below(object);
    for (const ContentObject* version : below) {
      if (version->kind != ObjectKind::Version) continue;
      for (const Copy& copy : copiesOf(content_, *version)) writeFormat(copy);
    }
    writeExtensions(object);
    writeIdentifier("ebucore:identifier", object);
    elements.putUpTo("relation");
    for (const ContentObject* version : below) {
      if (version->kind != ObjectKind::Version) continue;
      xml_.open("ebucore:hasVersion", {{"note", version->title}});
      writeIdentifier("ebucore:relationIdentifier", *version);
      xml_.close();
    }
    elements.putUpTo("rightsHolder");
    writeParts(object);
  }

  void writeIdentifier(const char* tag, const ContentObject& object) {
    xml_.open(tag, {{"formatLabel", "velra"}});
    xml_.element("dc:identifier", object.identifier);
    xml_.close();
  }

  void writeParts(const ContentObject& object) {
    for (const ContentObject* child : content_.below(object)) {
      // Versions are no parts, but what they express is one.
      if (child->kind == ObjectKind::Version) writeParts(*child);
      if (!isExpression(child->kind)) continue;
      ++parts_;
      xml_.open("ebucore:part", {{"partName", child->title},
                                 {"partNumber", std::to_string(child->number)},
                                 {"typeLabel", classNameOf(child->kind)}});
      writeCore(*child);
      if (child->time) {
        writeEbuCoreTime("ebucore:partStartTime", child->time->start, xml_);
        writeEbuCoreTime("ebucore:partEndTime", child->time->end, xml_);
      }
      xml_.close();
    }
  }

  void writeFormat(const Copy& copy) {
    ++formats_;
    xml_.open("ebucore:format",
              {{"formatName", copy.itself().title}, {"typeLabel", "instantiation"}});
    std::vector<MappedValue> values;
    for (const ContentObject* object : copy.ladder) {
      for (const MappedValue& value : mapping_.valuesOf(*object)) values.push_back(value);
    }
    writeMedium(values);
    writeEbuCoreTechnique(copy, xml_);
    for (const ContentObject* object : copy.ladder) writeTechnical(*object);
    xml_.close();
  }

  void writeMedium(const std::vector<MappedValue>& values) {
    for (const MappedValue& value : values) {
      if (value.element == "format") xml_.element("dc:format", value.text);
    }
    for (const MappedValue& value : values) {
      if (value.element == "medium") {
        xml_.element("ebucore:medium", "", {{"typeLabel", value.text}});
      }
    }
  }

  // The standard keeps extensions in formats alone, so what a document or a part has more needs
  // one.
  void writeExtensions(const ContentObject& object) {
    if (mapping_.unmapped(object).empty()) return;
    xml_.open("ebucore:format", {{"typeLabel", "extension"}});
    writeTechnical(object);
    xml_.close();
  }

  void writeTechnical(const ContentObject& object) {
    for (const auto& [field, text] : mapping_.unmapped(object)) {
      ++extensions_;
      xml_.element("ebucore:technicalAttributeString", text, {{"typeLabel", field}});
    }
  }

  const Content& content_;
  Mapping mapping_;
  XmlStream xml_;
  std::size_t formats_ = 0;
  std::size_t parts_ = 0;
  std::size_t extensions_ = 0;
};

Exported writeEbuCore(const Content& content, const ExportOptions& options) {
  return EbuCoreWriter(content, options).write();
}

}  // namespace

const ExportFormat kEbuCoreFormat{
    "ebucore",     "EBUCore 1.10",
    "ebucore.xml", "a record for archives and broadcasters, EBUCore 1.10",
    "mapping",     writeEbuCore};

}  // namespace velra
