// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QGroupBox;
class QWidget;

namespace velra {

class ApplicationModule;
class CrossLanguageFields;
struct FieldBox;

/// By how many pixels the boxes of a form have to be higher than the layout has them, so that its
/// font fits into a set of rows, the fullest of the controls.
int extraBoxHeight(QWidget& form);

/// The box of a field on a form's panel, with its control in it: the frame `Frame1_k` and a control
/// of the field's kind, higher than the layout has them by the pixels of `extraHeight`. The box,
/// and `crossLanguage`, which may be null, must outlive the frame.
QGroupBox* makeFieldFrame(FieldBox& box, CrossLanguageFields* crossLanguage,
                          const ApplicationModule& app, int extraHeight, QWidget* panel);

}  // namespace velra
