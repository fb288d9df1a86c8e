// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "exchange/Content.h"

namespace velra {

/// The words of a cue, from `start` to `end` in seconds. Where the text says when words are spoken
/// ("<00:00:01.500>" behind a word or before one), they have these times; the others are spread
/// over the time between by their lengths. Marks of form and of voices go. In WebVTT (`vtt`) all in
/// angle brackets is a mark, and "&amp;" and its like go for what they stand for.
std::vector<ContentWord> wordsOfCue(const std::string& text, double start, double end, bool vtt);

}  // namespace velra
