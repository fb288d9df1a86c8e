// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <string>

class QFileDialog;

namespace velra {

/// The filter of a file dialog in the toolkit's form: from pairs of a description and a list of
/// patterns, "Films (*.avi;*.mpg)|*.avi;*.mpg|", to "Films (*.avi *.mpg)". Pairs are joined by
/// ";;"; "*.*" means every file, with a point in its name or without.
QString fileDialogFilter(const std::string& pairs);

/// The first ending of a filter in the toolkit's form; "" for one that takes all files.
QString suffixOf(const QString& filter);

/// Names the lists of the toolkit's own file dialog by the labels beside them, as it does not do.
void labelLists(const QFileDialog& dialog);

}  // namespace velra
