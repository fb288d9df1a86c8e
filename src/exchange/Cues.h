// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "exchange/Content.h"

namespace velra {

/// A piece of text under a picture, in seconds.
struct Cue {
  double start = 0;
  double end = 0;
  std::vector<std::string> lines;
  std::vector<ContentWord> words;  // those of the lines, if it is made of words
};

/// Words, in order of their starts, as cues of at most two lines of 42 characters and of 1 to 7
/// seconds, broken at blanks and by preference behind sentences and at pauses. Only a word that is
/// longer than a line makes a longer line, and only a next cue that begins earlier a shorter cue.
/// Cues do not overlap unless the words begin together.
std::vector<Cue> cuesOf(const std::vector<ContentWord>& words);

}  // namespace velra
