// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/Texts.h"

#include <QLibraryInfo>
#include <QTranslator>

// Resources of a library are linked only where they are asked for, outside of any namespace.
static void linkTranslations() {
  Q_INIT_RESOURCE(translations);
}

namespace velra {

void Texts::speak(InterfaceLanguage language) {
  if (language != InterfaceLanguage::Italian) return;
  linkTranslations();
  const QString toolkit = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  for (const QString& file :
       {toolkit + QStringLiteral("/qtbase_it.qm"), QStringLiteral(":/translations/velra_it.qm")}) {
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(file)) QCoreApplication::installTranslator(translator);
  }
}

}  // namespace velra
