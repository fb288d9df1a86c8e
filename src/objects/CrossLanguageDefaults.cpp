// SPDX-License-Identifier: GPL-3.0-or-later
#include "objects/CrossLanguageDefaults.h"

#include "app/ApplicationModule.h"
#include "base/RunTimeError.h"
#include "schema/SEColl.h"
#include "vocabulary/NaroThematicKeywords.h"

namespace velra {

namespace {

template <class Entries>
const auto& firstOf(const Entries& entries) {
  if (entries.empty()) raise(kSubscriptOutOfRange);
  return *entries.front();
}

const Theme& firstTheme(const ApplicationModule& app) {
  if (!app.objNaroThematicKeywords) raise(kNoObject);
  return firstOf(app.objNaroThematicKeywords->colThemes());
}

void assign(SchemaElement& field, Value value) {
  field.setVContent(std::move(value));
  field.setBChanged(true);
  field.setBValid(true);
}

}  // namespace

void InitCrossLanguageFields(const ApplicationModule& app, SEColl& fields) {
  for (SchemaElement& field : fields) {
    if (field.strName() == "Themes") {
      assign(field, firstTheme(app).strEnglish);
    } else if (field.strName() == "Subthemes") {
      assign(field, firstOf(firstTheme(app).colSubthemes()).strEnglish);
    } else if (field.strName() == "ThematicKeywords") {
      const Subtheme& subtheme = firstOf(firstTheme(app).colSubthemes());
      assign(field, StringList{firstOf(subtheme.colKeywords()).strEnglish});
    }
  }
}

}  // namespace velra
