// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "exchange/imports/ImportFormat.h"

namespace velra {

// Each is made by a file in formats/.
extern const ImportFormat kTableImport;
extern const ImportFormat kWebVttImport;
extern const ImportFormat kSubRipImport;
extern const ImportFormat kChaptersImport;
extern const ImportFormat kEdlImport;
extern const ImportFormat kShotsImport;  // made by ShotImport.cpp

}  // namespace velra
