// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/ClassRules.h"

#include <algorithm>
#include <array>

namespace velra {

namespace {

const std::array<ClassRules, 7>& table() {
  static const std::array<ClassRules, 7> kTable{{
      {"AVDocument", "AVDocGUID", "Title", "expressedby", "Version", "", "", {}},
      {"Version", "VersionGUID", "VersionTitle", "manifestedby", "Media", "", "", {}},
      {"Media", "MediaGUID", "Format", "availableas", "Storage", "", "", {}},
      {"Storage", "StorageGUID", "Collocation", "", "", "", "", {}},
      {"Video",
       "VideoGUID",
       "Title",
       "",
       "",
       "partofvideo",
       "followedbyvideo",
       {"hasvideotranscript", "hasaudio", "versionguid", "followedbyvideo", "partofvideo"}},
      // The link of an Audio to its transcript does not follow.
      {"Audio",
       "AudioGUID",
       "Title",
       "",
       "",
       "partofaudio",
       "followedbyaudio",
       {"versionguid", "followedbyaudio", "partofaudio"}},
      {"Transcript",
       "TranscriptGUID",
       "Title",
       "",
       "",
       "partoftranscript",
       "followedbytranscript",
       {"versionguid", "followedbytranscript", "partoftranscript"}},
  }};
  return kTable;
}

}  // namespace

const ClassRules* findClassRules(std::string_view className) {
  const auto at = std::find_if(table().begin(), table().end(), [&](const ClassRules& rules) {
    return rules.className == className;
  });
  return at == table().end() ? nullptr : &*at;
}

std::string_view titleFieldOf(std::string_view className) {
  const ClassRules* rules = findClassRules(className);
  return rules ? std::string_view(rules->titleField) : std::string_view();
}

bool isExpressionClass(std::string_view className) {
  const ClassRules* rules = findClassRules(className);
  return rules && !rules->partOfField.empty();
}

}  // namespace velra
