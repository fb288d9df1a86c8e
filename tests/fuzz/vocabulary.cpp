// SPDX-License-Identifier: GPL-3.0-or-later

// The five-language vocabulary.

#include "base/RunTimeError.h"
#include "fuzz/FuzzSession.h"
#include "vocabulary/NaroThematicKeywords.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static velra::fuzz::FuzzSession session;
  const std::string path = session.file(data, size, "words.xml");
  velra::NaroThematicKeywords vocabulary;
  try {
    const bool read = vocabulary.bSetFromXMLFile(session.app, path);
    velra::fuzz::require(read == session.ui.shown.empty());  // a failure, and it alone, is told
  } catch (const velra::RunTimeError&) {
    // Text or a comment among the entries ends the start with a sentence.
  }
  return 0;
}
