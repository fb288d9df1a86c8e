// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/PbCoreElements.h"

#include <algorithm>

#include "platform/xml/XmlStream.h"

namespace velra {

const std::vector<PbCoreShape> kPbCoreAsset{
    {"assetType", "pbcoreAssetType", "", "", ""},
    {"assetDate", "pbcoreAssetDate", "", "", "dateType"},
    {"identifier", "pbcoreIdentifier", "", "", "source"},
    {"title", "pbcoreTitle", "", "", "titleType"},
    {"subject", "pbcoreSubject", "", "", "subjectType"},
    {"description", "pbcoreDescription", "", "", "descriptionType"},
    {"genre", "pbcoreGenre", "", "", ""},
    {"coverage", "pbcoreCoverage", "coverage", "coverageType", ""},
    {"creator", "pbcoreCreator", "creator", "creatorRole", ""},
    {"contributor", "pbcoreContributor", "contributor", "contributorRole", ""},
    {"publisher", "pbcorePublisher", "publisher", "publisherRole", ""},
    {"rights", "pbcoreRightsSummary", "rightsSummary", "", ""},
    {"annotation", "pbcoreAnnotation", "", "", "annotationType"},
};
const std::vector<PbCoreShape> kPbCoreInstantiation{
    {"identifier", "instantiationIdentifier", "", "", "source"},
    {"date", "instantiationDate", "", "", "dateType"},
    {"physical", "instantiationPhysical", "", "", "", true},
    {"generations", "instantiationGenerations", "", "", ""},
    {"colors", "instantiationColors", "", "", "", true},
    {"rights", "instantiationRights", "rightsSummary", "", ""},
    {"annotation", "instantiationAnnotation", "", "", "annotationType"},
};

namespace {

bool isOfAsset(ObjectKind kind) {
  return kind == ObjectKind::AVDocument || isExpression(kind);
}

bool hasShape(const std::vector<PbCoreShape>& shapes, const std::string& element) {
  return std::any_of(shapes.begin(), shapes.end(),
                     [&](const PbCoreShape& shape) { return shape.element == element; });
}

}  // namespace

bool pbCoreKnows(ObjectKind kind, const std::string& element) {
  return hasShape(isOfAsset(kind) ? kPbCoreAsset : kPbCoreInstantiation, element);
}

void PbCoreElements::putUpTo(std::string_view last) {
  while (next_ < shapes_.size()) {
    const PbCoreShape& shape = shapes_[next_++];
    bool written = false;
    for (const MappedValue& value : values_) {
      if (value.element != shape.element || (shape.once && written)) continue;
      put(shape, value);
      written = true;
    }
    if (shape.element == last) return;
  }
}

void PbCoreElements::put(const PbCoreShape& shape, const MappedValue& value) {
  XmlAttributes attributes;
  const std::string attribute = shape.attribute;
  if (!attribute.empty() && !value.qualifier.empty()) {
    attributes.emplace_back(attribute, value.qualifier);
  } else if (attribute == "source") {
    attributes.emplace_back(attribute, "archive");  // it has to have one
  }
  // The standard has no languages of single terms.
  if (!value.language.empty()) attributes.emplace_back("annotation", value.language);
  if (*shape.inner == '\0') return xml_.element(shape.tag, value.text, attributes);
  xml_.open(shape.tag, attributes);
  xml_.element(shape.inner, value.text);
  if (*shape.role != '\0' && !value.qualifier.empty()) xml_.element(shape.role, value.qualifier);
  xml_.close();
}

}  // namespace velra
