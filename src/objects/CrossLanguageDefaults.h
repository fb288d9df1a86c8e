// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra {

class ApplicationModule;
class SEColl;

/// Gives the thematic fields of a new document the first entries of the vocabulary. Without a
/// vocabulary kNoObject, with an empty one kSubscriptOutOfRange.
void InitCrossLanguageFields(const ApplicationModule& app, SEColl& fields);

}  // namespace velra
