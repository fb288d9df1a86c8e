// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

namespace velra {

class ApplicationModule;
class GeneratedFormFace;
class LoadedForm;

/// The window of a loaded metadata form.
class MetadataFormWindow : public QDialog {
 public:
  /// The form must outlive the window.
  MetadataFormWindow(const ApplicationModule& app, LoadedForm& form, QWidget* owner);
  ~MetadataFormWindow() override;
  MetadataFormWindow(const MetadataFormWindow&) = delete;
  MetadataFormWindow& operator=(const MetadataFormWindow&) = delete;

  /// Esc and the close box do what Cancel does.
  void reject() override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  LoadedForm& form_;
  GeneratedFormFace* face_;
};

}  // namespace velra
