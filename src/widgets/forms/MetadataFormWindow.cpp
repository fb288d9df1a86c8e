// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/forms/MetadataFormWindow.h"

#include <QKeyEvent>
#include <QPushButton>

#include "forms/LoadedForm.h"
#include "forms/MetadataKinds.h"
#include "widgets/QtText.h"
#include "widgets/forms/GeneratedFormFace.h"

namespace velra {

MetadataFormWindow::MetadataFormWindow(const ApplicationModule& app, LoadedForm& form,
                                       QWidget* owner)
    : QDialog(owner),
      form_(form),
      face_(new GeneratedFormFace(app,
                                  {form.fields(), form.tabs(), form.arrTabScroll(),
                                   form.crossLanguageFields(), form.framePasses()},
                                  this)) {
  setObjectName(toQString(form_.kind().formName));
  setWindowTitle(windowTitleText(form_.caption()));
  setModal(true);
  resize(GeneratedFormFace::designSize());
  connect(face_, &GeneratedFormFace::okClicked, this, [this] { form_.OKButt_Click(); });
  connect(face_, &GeneratedFormFace::cancelClicked, this, [this] { form_.CancelButt_Click(); });
  form_.onUnload = [this] { done(Accepted); };
}

MetadataFormWindow::~MetadataFormWindow() {
  form_.onUnload = nullptr;
}

void MetadataFormWindow::reject() {
  form_.CancelButt_Click();
}

void MetadataFormWindow::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  face_->setGeometry(rect());
}

void MetadataFormWindow::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  face_->focusFirstBox();
}

void MetadataFormWindow::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isReturn) {
    QDialog::keyPressEvent(event);
    return;
  }
  // The form has no default button: in a row of a set Return would end the form by accident.
  if (auto* button = qobject_cast<QPushButton*>(focusWidget())) button->click();
}

}  // namespace velra
