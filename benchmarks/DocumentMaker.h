// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velra::bench {

/// What a generated document holds.
struct DocumentPlan {
  int objects = 1000;            // a multiple of 50; spread over all classes
  int wordsInOneTranscript = 0;  // in the first main transcript
  int segmentsOfOneVersion = 0;  // if so, one Version with so many Videos and so many Audios
  int segmentsOfAnother = 0;     // and if so, one more with as many of both
  const char* movie = nullptr;   // what all Storages name; null: files that are not there
};

/// Writes a document with its object files into a folder, in the way of the sample: Versions with
/// three Media and Storages each, a main Video, Audio and Transcript with segments two levels deep,
/// and a key-frame picture for each video segment. Returns the document's path.
std::string makeDocument(const std::string& folder, const DocumentPlan& plan);

}  // namespace velra::bench
