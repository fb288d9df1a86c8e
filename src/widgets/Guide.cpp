// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/Guide.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QKeyEvent>
#include <QUrl>
#include <QWidget>

#include "app/ApplicationModule.h"
#include "widgets/QtText.h"

namespace velra {
namespace {

constexpr struct {
  const char* window;
  const char* page;
} kPages[] = {
    {"frmMain", "main-window"},     {"frmAVDocForm", "forms"},  {"VersionForm", "forms"},
    {"MediaForm", "forms"},         {"StorageForm", "forms"},   {"AVDocSchemaDialog", "flags"},
    {"VideoForm", "cutting"},       {"RangeDialog", "cutting"}, {"SearchDialog", "find"},
    {"SearchResultDialog", "find"}, {"ShotsDialog", "cutting"}, {"RecoverDialog", "trouble"},
    {"ConnectionDialog", "files"},
};

/// The page of a window, or for a box that has none of the window that it belongs to.
QString pageOf(const QWidget* window) {
  for (; window; window = window->parentWidget()) {
    for (const auto& row : kPages) {
      if (window->objectName() == QLatin1String(row.window)) return QLatin1String(row.page);
    }
  }
  return QStringLiteral("index");
}

}  // namespace

Guide::Guide(const ApplicationModule& app) : app_(app) {
  qApp->installEventFilter(this);
}

bool Guide::open(const QString& page) const {
  const std::string folder = app_.strHelpPath();
  const char* language = app_.messages.language() == InterfaceLanguage::Italian ? "it" : "en";
  const QString path = toQString(folder) + QLatin1Char('/') + QLatin1String(language) +
                       QLatin1Char('/') + page + QLatin1String(".html");
  return !folder.empty() && QFileInfo::exists(path) &&
         QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

bool Guide::eventFilter(QObject* receiver, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !receiver->isWidgetType()) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const bool asked = key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier;
  return asked && !key.isAutoRepeat() &&
         open(pageOf(static_cast<const QWidget*>(receiver)->window()));
}

}  // namespace velra
