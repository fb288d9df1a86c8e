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

}  // namespace

void InitCrossLanguageFields(const ApplicationModule& app, SEColl& fields) {
  for (SchemaElement& field : fields) {
    if (field.strName() == "Themes") {
      field.assign(firstTheme(app).strEnglish);
    } else if (field.strName() == "Subthemes") {
      field.assign(firstOf(firstTheme(app).colSubthemes()).strEnglish);
    } else if (field.strName() == "ThematicKeywords") {
      const Subtheme& subtheme = firstOf(firstTheme(app).colSubthemes());
      field.assign(StringList{firstOf(subtheme.colKeywords()).strEnglish});
    }
  }
}

}  // namespace velra
