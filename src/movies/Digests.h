// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string_view>

#include "platform/files/Digest.h"

namespace velra {

/// The digests of what `nextPiece` gives, until that is empty. The library of the movies has them.
FileDigests digestsOfPieces(const std::function<std::string_view()>& nextPiece);

}  // namespace velra
