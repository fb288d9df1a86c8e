// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/QtFormPresenter.h"

#include <QApplication>
#include <QDialog>

#include "protocol/ObjectForm.h"
#include "widgets/dialogs/ConnectionDialogWindow.h"
#include "widgets/dialogs/RecoverDialogWindow.h"
#include "widgets/dialogs/SchemaDialogWindow.h"
#include "widgets/dialogs/SearchDialogWindow.h"
#include "widgets/dialogs/SearchResultWindow.h"
#include "widgets/dialogs/ShotsDialogWindow.h"
#include "widgets/forms/MetadataFormWindow.h"

namespace velra {

void QtFormPresenter::setMainWindow(QWidget* window) {
  mainWindow_ = window;
}

void QtFormPresenter::showForm(FormOwner& owner, LoadedForm& form) {
  MetadataFormWindow window(app_, form, windowOf(owner));
  showModally(window);
}

void QtFormPresenter::showSchemaDialog(FormOwner& owner, AVDocSchemaDialog& dialog) {
  SchemaDialogWindow window(app_, dialog, windowOf(owner));
  showModally(window);
}

void QtFormPresenter::showSearchDialog(FormOwner& owner, SearchDialog& dialog) {
  SearchDialogWindow window(app_, dialog, windowOf(owner));
  showModally(window);
}

void QtFormPresenter::showSearchResults(FormOwner& owner, SearchResultDialog& dialog) {
  SearchResultWindow window(app_, dialog, windowOf(owner));
  showModally(window);
}

void QtFormPresenter::showConnectionDialog(FormOwner& owner, ConnectionDialog& dialog) {
  ConnectionDialogWindow window(app_, dialog, windowOf(owner));
  showModally(window);
}

void QtFormPresenter::showShotsDialog(FormOwner& owner, ShotsDialog& dialog) {
  ShotsDialogWindow window(app_, dialog, windowOf(owner));
  showModally(window);
}

void QtFormPresenter::showRecoverDialog(FormOwner& owner, RecoverDialog& dialog) {
  RecoverDialogWindow window(app_, dialog, windowOf(owner));
  showModally(window);
}

QWidget* QtFormPresenter::windowOf(FormOwner& owner) const {
  if (auto* widget = dynamic_cast<QWidget*>(&owner)) return widget->window();
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  // A form over the splash window would go with it.
  QWidget* active = QApplication::activeWindow();
  return active && active->windowType() != Qt::SplashScreen ? active : mainWindow_.data();
}

void QtFormPresenter::showModally(QDialog& window) {
  const auto remembered = sizes_.find(window.objectName());
  if (remembered != sizes_.end()) window.resize(remembered->second);
  window.exec();
  sizes_[window.objectName()] = window.size();
}

}  // namespace velra
