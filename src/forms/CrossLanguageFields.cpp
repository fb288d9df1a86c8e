// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/CrossLanguageFields.h"

#include <algorithm>

#include "app/ApplicationModule.h"
#include "base/Arithmetic.h"
#include "base/RunTimeError.h"
#include "forms/FieldValues.h"
#include "forms/FormCommit.h"
#include "forms/VocabularyNames.h"
#include "forms/ctlSetOfStringCL.h"
#include "platform/UserInterface.h"
#include "schema/SEColl.h"

namespace velra {

namespace {

constexpr std::string_view kThemes = "Themes";
constexpr std::string_view kSubthemes = "Subthemes";
constexpr std::string_view kThematicKeywords = "ThematicKeywords";

template <class T>
T& existing(T* object) {
  if (!object) raise(kNoObject);
  return *object;
}

}  // namespace

bool CrossLanguageFields::bCLConsistent(const SEColl& secol) {
  bool themeFound = false;
  bool subthemeFound = false;
  bool keywordsGood = false;
  for (const SchemaElement& field : secol) {
    if (field.strName() == kThemes) {
      colCurSubthemes_ = colThemeSubthemes(toText(field.vContent()));
      themeFound = colCurSubthemes_ != nullptr;
    } else if (field.strName() == kSubthemes) {
      if (!themeFound) return false;
      colCurKeywords_ = colSubthemeKeywords(toText(field.vContent()));
      subthemeFound = colCurKeywords_ != nullptr;
    } else if (field.strName() == kThematicKeywords) {
      if (!subthemeFound) return false;
      keywordsGood = keywordsAreKnown(field);
    }
  }
  return keywordsGood || (!themeFound && !subthemeFound);
}

// The way out of a document whose form no language opens.
std::string CrossLanguageFields::withoutKeywords(const std::string& field) const {
  return field + " has no keyword; the form opens with \"" +
         app_.LoadResString(Message::CrossLanguageDisabled) + "\" in the menu \"" +
         app_.LoadResString(Message::Language) + "\"";
}

bool CrossLanguageFields::keywordsAreKnown(const SchemaElement& field) const {
  const StringList* members = asList(field.vContent());
  if (!members) raise(kNoObject, withoutKeywords(field.strName()));
  return std::all_of(members->begin(), members->end(), [this](const std::string& member) {
    return entryOf(*colCurKeywords_, member) != nullptr;
  });
}

bool CrossLanguageFields::addField(FormFields& form, const SchemaElement& field,
                                   std::size_t position) {
  const bool isText = field.tyType() == tyType::String;
  if (isText && (field.strName() == kThemes || field.strName() == kSubthemes)) {
    AddComboCL(form, field, position);
    return true;
  }
  if (field.tyType() == tyType::SetOfStrings && field.strName() == kThematicKeywords) {
    AddSetStringsCL(form, field, position);
    return true;
  }
  return false;
}

void CrossLanguageFields::AddComboCL(FormFields& form, const SchemaElement& field,
                                     std::size_t position) {
  const std::string english = toText(field.vContent());
  const bool isTheme = field.strName() == kThemes;
  const auto items = isTheme ? localNames(vocabulary().colThemes(), language())
                             : localNames(existing(colCurSubthemes_), language());
  FieldBox& box = form.AddCombo(field.strComment(), field.strName(), items,
                                isTheme ? strLocalTheme(english) : strLocalSubtheme(english),
                                field.bReadOnly(), position);
  (isTheme ? cmbThemes_ : cmbSubthemes_) = &box;
}

void CrossLanguageFields::AddSetStringsCL(FormFields& form, const SchemaElement& field,
                                          std::size_t position) {
  const StringList& strings = toCollection(field.vContent());
  auto control = std::make_unique<ctlSetOfStringCL>();
  control->setEnabled(!field.bReadOnly());
  control->AssignItems(existing(colCurKeywords_), language());
  const std::int16_t count = toInt16(static_cast<double>(strings.size()));
  control->Init(count);
  for (std::int16_t row = 1; row <= count; ++row) {
    control->setStrng(row, language(), strings[static_cast<std::size_t>(row) - 1]);
  }
  ctlSetOfStringCL1_ = control.get();
  form.AddSetStringsCL(field.strComment(), field.strName(), std::move(control), field.bReadOnly(),
                       position);
}

bool CrossLanguageFields::commitField(const FieldBox& box, SchemaElement& field) {
  if (&box == cmbThemes_) {
    field.setVContent(strEnglishTheme(toText(box.value)));
  } else if (&box == cmbSubthemes_) {
    field.setVContent(strEnglishSubtheme(toText(box.value)));
  } else if (ctlSetOfStringCL1_ && box.rows.get() == ctlSetOfStringCL1_) {
    StringList english;
    for (std::int16_t row = 1; row <= ctlSetOfStringCL1_->Count(); ++row) {
      english.push_back(ctlSetOfStringCL1_->Strng(row, language()));
    }
    commitSet(field, english);
  } else {
    return false;
  }
  // OK marks the three in any case, touched or not.
  field.setBChanged(true);
  return true;
}

void CrossLanguageFields::Combo1_Click(FieldBox& box) {
  if (&box == cmbThemes_) themeClicked();
  if (&box == cmbSubthemes_) subthemeClicked();
}

void CrossLanguageFields::themeClicked() {
  const std::string english = strEnglishTheme(toText(cmbThemes_->value));
  if (english == strTheme_) return;
  if (app_.ui.askYesNo("This will reset the fields Subthemes and ThematicKeywords, would like to "
                       "continue?")) {
    resetBelowTheme(english);
  } else {
    cmbThemes_->show(strLocalTheme(strTheme_));
  }
}

void CrossLanguageFields::resetBelowTheme(const std::string& englishTheme) {
  static const Subtheme kNone;  // stands first in a theme that has no subthemes
  colCurSubthemes_ = colThemeSubthemes(englishTheme);
  const Subthemes& subthemes = existing(colCurSubthemes_);
  const Subtheme& first = subthemes.empty() ? kNone : *subthemes.front();
  strSubtheme_ = first.strEnglish;
  colCurKeywords_ = &first.colKeywords();
  offerSubthemes();
  offerKeywords();
}

// A field that is not assigned has no control, and nothing to offer.
void CrossLanguageFields::offerSubthemes() {
  if (!cmbSubthemes_) return;
  cmbSubthemes_->items = localNames(existing(colCurSubthemes_), language());
  cmbSubthemes_->show(strLocalSubtheme(strSubtheme_));
}

void CrossLanguageFields::subthemeClicked() {
  const std::string english = strEnglishSubtheme(toText(cmbSubthemes_->value));
  if (english == strSubtheme_) return;
  if (app_.ui.askYesNo("This will reset the ThematicKeywords, would like to continue?")) {
    colCurKeywords_ = colSubthemeKeywords(english);
    offerKeywords();
  } else {
    cmbSubthemes_->show(strLocalSubtheme(strSubtheme_));
  }
}

void CrossLanguageFields::offerKeywords() {
  if (ctlSetOfStringCL1_) ctlSetOfStringCL1_->AssignItems(existing(colCurKeywords_), language());
}

NaroThematicKeywords& CrossLanguageFields::vocabulary() const {
  return existing(app_.objNaroThematicKeywords.get());
}

std::int32_t CrossLanguageFields::language() const {
  return app_.iLanguage;
}

const CrossLanguageFields::Subthemes* CrossLanguageFields::colThemeSubthemes(
    const std::string& english) {
  const Theme* theme = entryOf(vocabulary().colThemes(), english);
  if (!theme) return nullptr;
  strTheme_ = english;
  return &theme->colSubthemes();
}

const CrossLanguageFields::Keywords* CrossLanguageFields::colSubthemeKeywords(
    const std::string& english) {
  const Subtheme* subtheme = entryOf(existing(colCurSubthemes_), english);
  if (!subtheme) return nullptr;
  strSubtheme_ = english;
  return &subtheme->colKeywords();
}

std::string CrossLanguageFields::strLocalTheme(const std::string& english) const {
  return localName(vocabulary().colThemes(), english, language());
}

std::string CrossLanguageFields::strLocalSubtheme(const std::string& english) const {
  return localName(existing(colCurSubthemes_), english, language());
}

std::string CrossLanguageFields::strEnglishTheme(const std::string& local) const {
  return englishName(vocabulary().colThemes(), local, language());
}

std::string CrossLanguageFields::strEnglishSubtheme(const std::string& local) const {
  return englishName(existing(colCurSubthemes_), local, language());
}

}  // namespace velra
