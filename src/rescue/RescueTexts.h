// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra {

/// What is said of saves that were cut off, in the order in which it is joined. Paths stand between
/// the pieces, so that each begins and ends like the English one.
struct RescueTexts {
  const char* aSave;
  const char* of;
  const char* cutOff;
  const char* finished;
  const char* leftSince;
  const char* changedSince;
  const char* underTheName;
  const char* undone;
  const char* notFinished;
  const char* isNotThere;
  const char* isOpen;
};

/// In Italian or in English.
const RescueTexts& rescueTexts(bool italian);

}  // namespace velra
