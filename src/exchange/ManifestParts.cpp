// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/ManifestParts.h"

#include <utility>

namespace velra {

namespace {

ManifestJson inItsLanguages(const ContentField& field) {
  if (field.translations.empty()) return {{"none", field.texts}};
  ManifestJson languages;
  // Viewers show one language alone, so what has no translation stands in each.
  for (std::size_t text = 0; text < field.texts.size(); ++text) {
    const Translations& names = field.translations[text];
    for (std::size_t i = 0; i < names.size(); ++i) {
      languages[kContentLanguages[i]].push_back(names[i].empty() ? field.texts[text] : names[i]);
    }
  }
  return languages;
}

}  // namespace

// Braces around one value mean a copy of it to some compilers, and a list to others.
ManifestJson inList(ManifestJson one) {
  ManifestJson list = ManifestJson::array();
  list.push_back(std::move(one));
  return list;
}

ManifestJson inNoLanguage(const std::string& text) {
  return {{"none", inList(text.empty() ? "-" : text)}};
}

ManifestJson metadataOf(const ContentObject& object) {
  ManifestJson metadata = ManifestJson::array();
  for (const ContentField& field : object.fields) {
    const bool readable = field.type <= tyType::CloseList && !field.linking;
    if (!field.assigned || !readable || field.texts.empty()) continue;
    metadata.push_back({{"label", {{"en", inList(field.name)}}}, {"value", inItsLanguages(field)}});
  }
  return metadata;
}

}  // namespace velra
