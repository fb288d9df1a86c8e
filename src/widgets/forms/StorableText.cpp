// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/XmlText.h"

#include <algorithm>

namespace velra {

namespace {

bool isXmlCharacter(QChar character) {
  const char16_t unit = character.unicode();
  if (unit < 0x20) return unit == u'\t' || unit == u'\n' || unit == u'\r';
  return unit != 0xFFFE && unit != 0xFFFF;
}

}  // namespace

QString xmlText(const QString& text) {
  QString result;
  result.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar unit = text[i];
    if (!unit.isSurrogate()) {
      if (isXmlCharacter(unit)) result += unit;
    } else if (unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
      result += unit;
      result += text[++i];
    }
  }
  return result;
}

QValidator::State XmlTextValidator::validate(QString& input, int& position) const {
  const QString before = xmlText(input.left(position));
  input = xmlText(input);
  position = std::min(static_cast<int>(before.size()), static_cast<int>(input.size()));
  return Acceptable;
}

}  // namespace velra
