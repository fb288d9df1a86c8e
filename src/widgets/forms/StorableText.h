// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QValidator>

namespace velra {

/// The text without the characters that no XML file can hold: control characters but for tab and
/// line ends, halves of a pair, and two that are no characters.
QString storableText(const QString& text);

/// Keeps such characters out of a line edit, typed or pasted.
class StorableTextValidator : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& input, int& position) const override;
};

}  // namespace velra
