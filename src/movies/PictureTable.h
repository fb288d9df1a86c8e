// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra {

class PictureReader;

/// Whether the table that the container keeps of its pictures, of all or of the keys, shows that
/// their stamps leap nowhere by more than `leap` seconds. False also when there is no such table or
/// it ends too early. Moves the input of the reader.
bool tableShowsNoLeap(PictureReader& reader, double frameTime, double leap);

}  // namespace velra
