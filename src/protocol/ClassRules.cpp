// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/ClassRules.h"

#include <algorithm>
#include <array>

namespace velra {

namespace {

using enum ObjectKind;

// In the order of ObjectKind.
const std::array<ClassRules, 8>& table() {
  static const std::array<ClassRules, 8> kTable{{
      {AVDocument, "AVDocument", "AVDocGUID", "Title", "expressedby", Version, "", "", {}},
      {Version, "Version", "VersionGUID", "VersionTitle", "manifestedby", Media, "", "", {}},
      {Media, "Media", "MediaGUID", "Format", "availableas", Storage, "", "", {}},
      {Storage, "Storage", "StorageGUID", "Collocation", "", {}, "", "", {}},
      {Video,
       "Video",
       "VideoGUID",
       "Title",
       "",
       {},
       "partofvideo",
       "followedbyvideo",
       {"hasvideotranscript", "hasaudio", "versionguid", "followedbyvideo", "partofvideo"}},
      // The link of an Audio to its transcript does not follow.
      {Audio,
       "Audio",
       "AudioGUID",
       "Title",
       "",
       {},
       "partofaudio",
       "followedbyaudio",
       {"versionguid", "followedbyaudio", "partofaudio"}},
      {Transcript,
       "Transcript",
       "TranscriptGUID",
       "Title",
       "",
       {},
       "partoftranscript",
       "followedbytranscript",
       {"versionguid", "followedbytranscript", "partoftranscript"}},
      {MediaObject, "MediaObject", "", "", "", {}, "", "", {}},
  }};
  return kTable;
}

}  // namespace

const ClassRules& rulesOf(ObjectKind kind) {
  return table().at(static_cast<std::size_t>(kind));
}

const std::string& classNameOf(ObjectKind kind) {
  return rulesOf(kind).className;
}

std::optional<ObjectKind> kindOfRoot(std::string_view className) {
  const auto at = std::find_if(table().begin(), table().end(), [&](const ClassRules& rules) {
    return rules.className == className;
  });
  if (at == table().end() || at->kind == MediaObject) return std::nullopt;
  return at->kind;
}

}  // namespace velra
