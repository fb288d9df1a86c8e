// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "forms/FormFields.h"

namespace velra {

class ApplicationModule;
class NaroThematicKeywords;
class Subtheme;
class ThematicKeyword;
class ctlSetOfStringCL;

/// The fields "Themes", "Subthemes" and "ThematicKeywords" of a document as two dependent lists and
/// a set over the vocabulary, shown in the language in force and stored in English. Without a
/// vocabulary every use raises kNoObject.
class CrossLanguageFields {
 public:
  explicit CrossLanguageFields(ApplicationModule& app) : app_(app) {}

  /// True when the three stored values are a path through the vocabulary, or when neither a theme
  /// nor a subtheme of theirs is in it. Sets the theme and the subtheme in force. The fields must
  /// stand in the order of their levels. A missing set of keywords raises kNoObject.
  bool bCLConsistent(const SEColl& secol);

  /// Builds the control of one of these fields; false for any other.
  bool addField(FormFields& form, const SchemaElement& field, std::size_t position);

  /// Takes the value of such a control into its field; false for any other.
  bool commitField(const FieldBox& box, SchemaElement& field);

  /// The person chose an item of a list. Asks before another theme or subtheme resets what depends
  /// on it; No puts the old one back.
  void Combo1_Click(FieldBox& box);

 private:
  using Subthemes = std::vector<std::shared_ptr<Subtheme>>;
  using Keywords = std::vector<std::shared_ptr<ThematicKeyword>>;

  NaroThematicKeywords& vocabulary() const;
  std::int32_t language() const;

  const Subthemes* colThemeSubthemes(const std::string& english);
  const Keywords* colSubthemeKeywords(const std::string& english);
  std::string strLocalTheme(const std::string& english) const;
  std::string strLocalSubtheme(const std::string& english) const;
  std::string strEnglishTheme(const std::string& local) const;
  std::string strEnglishSubtheme(const std::string& local) const;

  void AddComboCL(FormFields& form, const SchemaElement& field, std::size_t position);
  void AddSetStringsCL(FormFields& form, const SchemaElement& field, std::size_t position);
  bool keywordsAreKnown(const SchemaElement& field) const;
  std::string withoutKeywords(const std::string& field) const;
  void themeClicked();
  void subthemeClicked();
  void resetBelowTheme(const std::string& englishTheme);
  void offerSubthemes();
  void offerKeywords();

  ApplicationModule& app_;
  std::string strTheme_;  // English, as are all names kept here
  std::string strSubtheme_;
  const Subthemes* colCurSubthemes_ = nullptr;
  const Keywords* colCurKeywords_ = nullptr;
  FieldBox* cmbThemes_ = nullptr;
  FieldBox* cmbSubthemes_ = nullptr;
  ctlSetOfStringCL* ctlSetOfStringCL1_ = nullptr;
};

}  // namespace velra
