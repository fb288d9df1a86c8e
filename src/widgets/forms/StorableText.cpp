// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/StorableText.h"

#include <algorithm>

#include "platform/xml/XmlCharacter.h"

namespace velra {

QString storableText(const QString& text) {
  QString result;
  result.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar unit = text[i];
    if (unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
      result += unit;
      result += text[++i];
    } else if (isXmlCharacter(unit.unicode())) {
      result += unit;
    }
  }
  return result;
}

QValidator::State StorableTextValidator::validate(QString& input, int& position) const {
  const QString before = storableText(input.left(position));
  input = storableText(input);
  position = std::min(static_cast<int>(before.size()), static_cast<int>(input.size()));
  return Acceptable;
}

}  // namespace velra
