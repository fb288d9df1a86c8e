// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <vector>

#include "exchange/Content.h"

namespace velra {

class DescribedObject;
class NaroThematicKeywords;

/// The names of the vocabulary in all languages, found by the English one.
class VocabularyTranslations {
 public:
  /// Without a vocabulary nothing is found.
  explicit VocabularyTranslations(const NaroThematicKeywords* vocabulary);

  /// The languages of an object's fields that hold names of the vocabulary.
  void translate(std::vector<ContentField>& fields) const;

 private:
  using Names = std::map<std::string, Translations>;

  Names themes_;
  Names subthemes_;
  Names keywords_;
};

/// The path of a file that a document names, from the document's folder on where it lies below it,
/// else absolute; "" stays "".
std::string pathInContent(const std::string& path, const std::string& documentFolder);

/// All fields of an object. Relative paths in them start from the current folder, the document's.
std::vector<ContentField> contentFieldsOf(const DescribedObject& object,
                                          const std::string& documentFolder);

}  // namespace velra
