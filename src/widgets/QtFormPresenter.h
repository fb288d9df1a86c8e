#pragma once

#include <QPointer>
#include <QSize>
#include <QString>
#include <map>

#include "forms/FormPresenter.h"

class QDialog;
class QWidget;

namespace velra {

class ApplicationModule;

/// Shows forms as modal windows. A kind of form opens in the size that it had last in this run.
class QtFormPresenter : public FormPresenter {
 public:
  explicit QtFormPresenter(const ApplicationModule& app) : app_(app) {}

  /// The window that forms stand over when no other of the program is active; null before it
  /// exists.
  void setMainWindow(QWidget* window);

  void showForm(FormOwner& owner, LoadedForm& form) override;
  void showSchemaDialog(FormOwner& owner, AVDocSchemaDialog& dialog) override;

  /// The window behind an owner: itself if it is one, else the active one.
  QWidget* windowOf(FormOwner& owner) const;

 private:
  void showModally(QDialog& window);

  const ApplicationModule& app_;
  QPointer<QWidget> mainWindow_;
  std::map<QString, QSize> sizes_;  // by the windows' names
};

}  // namespace velra
