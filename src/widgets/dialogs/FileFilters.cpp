// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/dialogs/FileFilters.h"

#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QRegularExpression>
#include <QStringList>

#include "widgets/QtText.h"

namespace velra {

namespace {

QString withoutBrackets(const QString& description) {
  static const QRegularExpression closing(QStringLiteral("\\s*\\([^()]*\\)\\s*$"));
  QString text = description;
  return text.remove(closing);
}

QString spacedPatterns(const QString& patterns) {
  QStringList each = patterns.split(QLatin1Char(';'), Qt::SkipEmptyParts);
  each.replaceInStrings(QStringLiteral("*.*"), QStringLiteral("*"));
  return each.join(QLatin1Char(' '));
}

}  // namespace

QString fileDialogFilter(const std::string& pairs) {
  const QStringList pieces = toQString(pairs).split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
    filters << withoutBrackets(pieces[i]) + QStringLiteral(" (") + spacedPatterns(pieces[i + 1]) +
                   QLatin1Char(')');
  }
  return filters.join(QStringLiteral(";;"));
}

QString suffixOf(const QString& filter) {
  static const QRegularExpression ending(QStringLiteral("\\*\\.([\\w.]+)"));
  return ending.match(filter).captured(1);
}

void labelLists(const QFileDialog& dialog) {
  for (const QString& part : {QStringLiteral("lookIn"), QStringLiteral("fileType")}) {
    auto* label = dialog.findChild<QLabel*>(part + QStringLiteral("Label"));
    if (label) label->setBuddy(dialog.findChild<QComboBox*>(part + QStringLiteral("Combo")));
  }
}

}  // namespace velra
