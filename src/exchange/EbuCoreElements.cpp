// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/EbuCoreElements.h"

#include <algorithm>
#include <array>

#include "base/Text.h"
#include "platform/xml/XmlStream.h"

namespace velra {

namespace {

/// How an element of a mapping is written.
struct EbuCoreShape {
  std::string_view element;
  std::string_view path;    // tags inside one another; an outermost one alone has no qualifier
  bool hasRole = false;     // the qualifier is a tag behind the name, not a type of the whole
  bool inLanguages = true;  // the innermost tag may stand once for each language
};

constexpr std::array<EbuCoreShape, 17> kEbuCoreShapes{{
    {"title", "ebucore:title/dc:title"},
    {"alternativeTitle", "ebucore:alternativeTitle/dc:title"},
    {"creator", "ebucore:creator/ebucore:contactDetails/ebucore:name", true},
    {"subject", "ebucore:subject/dc:subject"},
    {"description", "ebucore:description/dc:description"},
    {"publisher", "ebucore:publisher/ebucore:organisationDetails/ebucore:organisationName", true},
    {"contributor", "ebucore:contributor/ebucore:contactDetails/ebucore:name", true},
    {"date", "ebucore:date/dc:date"},
    {"type", "ebucore:type/dc:type"},
    {"identifier", "ebucore:identifier/dc:identifier", false, false},
    {"source", "dc:source", false, false},
    {"language", "ebucore:language/dc:language", false, false},
    {"relation", "ebucore:relation/dc:relation", false, false},
    {"spatial", "ebucore:coverage/ebucore:spatial/ebucore:location/ebucore:name"},
    {"temporal", "ebucore:coverage/ebucore:temporal/ebucore:PeriodOfTime/ebucore:periodName"},
    {"rights", "ebucore:rights/dc:rights"},
    {"rightsHolder", "ebucore:rights/ebucore:rightsHolder/ebucore:contactDetails/ebucore:name"},
}};

/// One value, or one term in its languages.
class EbuCoreElement {
 public:
  EbuCoreElement(const EbuCoreShape& shape, const std::string& qualifier, XmlStream& xml)
      : tags_(split(std::string(shape.path), '/')), xml_(xml), innermost_(tags_.back()) {
    tags_.pop_back();
    const bool typed = !qualifier.empty() && !shape.hasRole;
    if (shape.hasRole) role_ = qualifier;
    for (const std::string& tag : tags_) {
      const bool outermost = &tag == &tags_.front();
      xml_.open(tag,
                outermost && typed ? XmlAttributes{{"typeLabel", qualifier}} : XmlAttributes());
    }
  }
  ~EbuCoreElement() {
    for (std::size_t depth = tags_.size(); depth > 0; --depth) {
      if (depth == 1 && !role_.empty()) xml_.element("ebucore:role", "", {{"typeLabel", role_}});
      xml_.close();
    }
  }
  EbuCoreElement(const EbuCoreElement&) = delete;
  EbuCoreElement& operator=(const EbuCoreElement&) = delete;

  void put(const MappedValue& value) {
    XmlAttributes attributes;
    if (!value.language.empty()) attributes.emplace_back("xml:lang", value.language);
    xml_.element(innermost_, value.text, attributes);
  }

 private:
  std::vector<std::string> tags_;
  XmlStream& xml_;
  std::string innermost_;
  std::string role_;
};

bool isFurtherLanguage(const MappedValue& value) {
  return !value.language.empty() && value.language != kContentLanguages.front();
}

}  // namespace

bool ebuCoreKnows(ObjectKind kind, const std::string& element) {
  if (kind != ObjectKind::AVDocument && !isExpression(kind)) {
    return element == "format" || element == "medium";
  }
  return std::any_of(kEbuCoreShapes.begin(), kEbuCoreShapes.end(),
                     [&](const EbuCoreShape& shape) { return shape.element == element; });
}

void EbuCoreElements::putUpTo(std::string_view last) {
  while (next_ < kEbuCoreShapes.size()) {
    const EbuCoreShape& shape = kEbuCoreShapes.at(next_++);
    for (std::size_t i = 0; i < values_.size();) {
      if (values_[i].element != shape.element) {
        ++i;
        continue;
      }
      EbuCoreElement element(shape, values_[i].qualifier, xml_);
      do element.put(values_[i++]);
      while (shape.inLanguages && i < values_.size() && isFurtherLanguage(values_[i]) &&
             values_[i].element == shape.element);
    }
    if (shape.element == last) return;
  }
}

}  // namespace velra
