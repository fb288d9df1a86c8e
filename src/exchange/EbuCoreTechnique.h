// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "exchange/Copies.h"

namespace velra {

class XmlStream;

/// A time in seconds from the start, in a tag of EBUCore.
void writeEbuCoreTime(const char* tag, double seconds, XmlStream& xml);

/// What a format of EBUCore tells of a copy's technique, in the order that the standard had before
/// it allowed any.
void writeEbuCoreTechnique(const Copy& copy, XmlStream& xml);

}  // namespace velra
