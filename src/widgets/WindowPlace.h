// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace velra {

class UserSettings;

/// Gives the window the place and size that the per-user store holds, or the first ones.
void restorePlace(QWidget& window, const UserSettings& settings);

/// Keeps place and size for the next start, unless the window is minimised. The kind of view is
/// kept in any case.
void storePlace(const QWidget& window, UserSettings& settings);

}  // namespace velra
