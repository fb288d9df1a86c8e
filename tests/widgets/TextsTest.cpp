// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/Texts.h"

#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QFile>
#include <QPushButton>
#include <QTranslator>

namespace velra {
namespace {

TEST(Texts, WindowsAndTheToolkitSpeakItalianWhereItIsAskedFor) {
  Texts::speak(InterfaceLanguage::Default);
  EXPECT_EQ(Texts::tr("Timeline"), QStringLiteral("Timeline"));
  Texts::speak(InterfaceLanguage::Italian);
  EXPECT_EQ(Texts::tr("Timeline"), QStringLiteral("Linea del tempo"));
  const QDialogButtonBox box(QDialogButtonBox::Cancel);
  EXPECT_EQ(box.button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Annulla"));
  qDeleteAll(qApp->findChildren<QTranslator*>());
  QFile file(QStringLiteral(VELRA_SOURCE_DIR "/src/widgets/translations/velra_it.ts"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_FALSE(file.readAll().contains("unfinished"));
}

}  // namespace
}  // namespace velra
