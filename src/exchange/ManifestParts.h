// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "exchange/Content.h"

namespace velra {

// Parts of which a manifest of the IIIF Presentation API is made.

using ManifestJson = nlohmann::ordered_json;

/// A list of one.
ManifestJson inList(ManifestJson one);

/// A text of no known language; "-" for none, since labels must say something.
ManifestJson inNoLanguage(const std::string& text);

/// What people read of an object: names of fields, and values in the languages that they have.
ManifestJson metadataOf(const ContentObject& object);

}  // namespace velra
