// SPDX-License-Identifier: GPL-3.0-or-later

// Dublin Core as OAI harvesters take it: one flat record of the document and its ladder.
#include <algorithm>
#include <array>

#include "exchange/ContentText.h"
#include "exchange/ExportFormats.h"
#include "exchange/Mapping.h"
#include "platform/movie/MovieFacts.h"
#include "platform/xml/XmlStream.h"

namespace velra {

namespace {

constexpr std::array<const char*, 15> kDublinCore{
    "title",  "creator",    "subject", "description", "publisher", "contributor", "date",  "type",
    "format", "identifier", "source",  "language",    "relation",  "coverage",    "rights"};

class DublinCoreWriter {
 public:
  DublinCoreWriter(const Content& content, const ExportOptions& options)
      : content_(content),
        mapping_(content, options, "dc", [](ObjectKind kind, const std::string& element) {
          return !isExpression(kind) &&
                 std::find(kDublinCore.begin(), kDublinCore.end(), element) != kDublinCore.end();
        }) {}

  Exported write() {
    xml_.open("oai_dc:dc", {{"xmlns:oai_dc", "http://www.openarchives.org/OAI/2.0/oai_dc/"},
                            {"xmlns:dc", "http://purl.org/dc/elements/1.1/"},
                            {"xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance"},
                            {"xsi:schemaLocation",
                             "http://www.openarchives.org/OAI/2.0/oai_dc/ "
                             "http://www.openarchives.org/OAI/2.0/oai_dc.xsd"}});
    put({"identifier", "", content_.document().identifier, ""});
    put({"type", "", "MovingImage", ""});
    for (const ContentObject& object : content_.objects) {
      if (isExpression(object.kind)) continue;
      for (const MappedValue& value : mapping_.valuesOf(object)) put(value);
      addOwn(object);
      left_ += mapping_.unmapped(object).size();
    }
    xml_.close();
    Exported exported{xml_.take(), {}};
    exported.notes.push_back(
        std::to_string(left_) +
        " values of fields without an element are left out, and all segments.");
    return exported;
  }

 private:
  void put(const MappedValue& value) {
    if (value.text.empty()) return;
    XmlAttributes attributes;
    if (!value.language.empty()) attributes.emplace_back("xml:lang", value.language);
    xml_.element("dc:" + value.element, value.text, attributes);
  }

  // What the ladder says by itself.
  void addOwn(const ContentObject& object) {
    if (object.kind == ObjectKind::Version) put({"relation", "", object.title, ""});
    if (object.kind != ObjectKind::Storage || object.movie.empty()) return;
    const MovieFacts facts = movieFacts(object.movie);
    if (facts.reason.empty()) put({"format", "", facts.mimeType, ""});
  }

  const Content& content_;
  Mapping mapping_;
  XmlStream xml_;
  std::size_t left_ = 0;
};

Exported writeDublinCore(const Content& content, const ExportOptions& options) {
  return DublinCoreWriter(content, options).write();
}

}  // namespace

const ExportFormat kDublinCoreFormat{"dc",      "Dublin Core",
                                     "dc.xml",  "a record for harvesters, Dublin Core (OAI)",
                                     "mapping", writeDublinCore};

}  // namespace velra
