// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/ContentFields.h"

#include "base/Paths.h"
#include "base/Text.h"
#include "protocol/DescribedObject.h"
#include "schema/SEColl.h"
#include "vocabulary/NaroThematicKeywords.h"

namespace velra {

namespace {

Translations namesOf(const VocabularyEntry& entry) {
  Translations names;
  for (std::size_t i = 0; i < names.size(); ++i) {
    names[i] = entry.strLocalLang(static_cast<std::int32_t>(i));
  }
  return names;
}

std::string contentText(const SchemaElement& element) {
  const std::string text = toText(element.vContent());
  return element.tyType() == tyType::Bool ? asciiLower(text) : text;
}

void readSpan(const Chunk& chunk, const std::string& folder, ContentField& field) {
  field.span = ContentSpan{chunk.dStart, chunk.dend};
  if (!chunk.strFile.empty()) field.texts.push_back(pathInContent(chunk.strFile, folder));
}

void readSet(const SchemaElement& element, const std::string& folder, ContentField& field) {
  const bool refers = element.tyType() == tyType::SetOfGUIDs;
  for (const std::string& text : *asList(element.vContent())) {
    field.texts.push_back(refers ? pathInContent(text, folder) : text);
  }
}

ContentField contentFieldOf(const SchemaElement& element, const std::string& documentFolder) {
  ContentField field;
  field.name = element.strName();
  field.type = element.tyType();
  field.assigned = element.bValid();
  field.linking = element.bIgnore() || element.tyType() == tyType::SetOfGUIDs;
  if (!field.assigned) return field;
  if (const auto chunk = asChunk(element.vContent())) {
    readSpan(*chunk, documentFolder, field);
  } else if (const auto words = asWords(element.vContent())) {
    for (const WordItem& word : *words) {
      field.words.push_back({word.dStart, word.dend, word.strTxt});
    }
  } else if (asList(element.vContent())) {
    readSet(element, documentFolder, field);
  } else {
    field.texts.push_back(contentText(element));
  }
  return field;
}

}  // namespace

VocabularyTranslations::VocabularyTranslations(const NaroThematicKeywords* vocabulary) {
  if (!vocabulary) return;
  for (const auto& theme : vocabulary->colThemes()) {
    themes_.try_emplace(theme->strEnglish, namesOf(*theme));
    for (const auto& subtheme : theme->colSubthemes()) {
      subthemes_.try_emplace(subtheme->strEnglish, namesOf(*subtheme));
      for (const auto& keyword : subtheme->colKeywords()) {
        keywords_.try_emplace(keyword->strEnglish, namesOf(*keyword));
      }
    }
  }
}

void VocabularyTranslations::translate(std::vector<ContentField>& fields) const {
  for (ContentField& field : fields) {
    const Names* names = field.name == "Themes"             ? &themes_
                         : field.name == "Subthemes"        ? &subthemes_
                         : field.name == "ThematicKeywords" ? &keywords_
                                                            : nullptr;
    if (!names) continue;
    for (const std::string& text : field.texts) {
      const auto known = names->find(text);
      field.translations.push_back(known == names->end() ? Translations() : known->second);
    }
  }
}

std::string pathInContent(const std::string& path, const std::string& documentFolder) {
  if (path.empty()) return path;
  const std::string absolute = strAbsolutePath(path);
  const std::string folder = withSeparator(documentFolder);
  return absolute.starts_with(folder) ? absolute.substr(folder.size()) : absolute;
}

std::vector<ContentField> contentFieldsOf(const DescribedObject& object,
                                          const std::string& documentFolder) {
  std::vector<ContentField> fields;
  for (const SchemaElement& element : object.secol()) {
    fields.push_back(contentFieldOf(element, documentFolder));
  }
  return fields;
}

}  // namespace velra
