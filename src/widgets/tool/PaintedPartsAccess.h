// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra {

/// Has screen readers see the parts of painted widgets: timeline and strip as lists of their ranges
/// and pictures. Called before the first such window; further calls change nothing.
void installPaintedPartsAccess();

}  // namespace velra
