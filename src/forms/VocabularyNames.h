// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "vocabulary/NaroThematicKeywords.h"

/// Look-ups over the entries of one level of the vocabulary. Of several equal names the first wins;
/// a name that is not there gives null or "".
namespace velra {

template <class Entries>
auto entryOf(const Entries& entries, const std::string& english) -> decltype(entries[0].get()) {
  for (const auto& entry : entries) {
    if (entry->strEnglish == english) return entry.get();
  }
  return nullptr;
}

template <class Entries>
std::string localName(const Entries& entries, const std::string& english, std::int32_t language) {
  const auto* entry = entryOf(entries, english);
  return entry ? entry->strLocalLang(language) : std::string();
}

template <class Entries>
std::string englishName(const Entries& entries, const std::string& local, std::int32_t language) {
  for (const auto& entry : entries) {
    if (entry->strLocalLang(language) == local) return entry->strEnglish;
  }
  return {};
}

template <class Entries>
std::vector<std::string> localNames(const Entries& entries, std::int32_t language) {
  std::vector<std::string> names;
  names.reserve(entries.size());
  for (const auto& entry : entries) names.push_back(entry->strLocalLang(language));
  return names;
}

}  // namespace velra
