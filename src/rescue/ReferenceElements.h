// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace velra {

/// True for an element, by its name without a prefix, whose text is the identifier of an object or
/// the file of a picture. A path that stands in any other one is a person's own words.
bool holdsIdentifier(std::string_view element);

/// True for an element whose text is the file of a key-frame picture.
bool holdsKeyFrame(std::string_view element);

/// The same for the path of a movie.
bool holdsMoviePath(std::string_view element);

}  // namespace velra
