// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/WindowPlace.h"

#include <QLocale>
#include <QWidget>
#include <string>

#include "platform/settings/UserSettings.h"
#include "widgets/QtText.h"
#include "widgets/Twips.h"

namespace velra {

namespace {

const std::string kSection = "Settings";

// Twips as the text of a 32-bit real number.
int readPixels(const UserSettings& settings, const std::string& key, const char* first) {
  bool isNumber = false;
  const QLocale plain = QLocale::c();
  const float twips = plain.toFloat(toQString(settings.read(kSection, key, first)), &isNumber);
  return pixelsFromTwips(static_cast<double>(isNumber ? twips : plain.toFloat(QString(first))));
}

std::string textOf(int pixels) {
  return std::to_string(twipsFromPixels(pixels));
}

}  // namespace

void restorePlace(QWidget& window, const UserSettings& settings) {
  const int left = readPixels(settings, "MainLeft", "1000");
  const int top = readPixels(settings, "MainTop", "1000");
  const int width = readPixels(settings, "MainWidth", "6500");
  const int height = readPixels(settings, "MainHeight", "6500");
  window.move(left, top);
  window.resize(width, height);
}

void storePlace(const QWidget& window, UserSettings& settings) {
  UserSettings::Texts texts;
  if (!window.isMinimized()) {
    texts = {{"MainLeft", textOf(window.x())},
             {"MainTop", textOf(window.y())},
             {"MainWidth", textOf(window.width())},
             {"MainHeight", textOf(window.height())}};
  }
  texts.emplace_back("ViewMode", "velra");
  settings.write(kSection, texts);
}

}  // namespace velra
