// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QString>
#include <atomic>
#include <future>
#include <stop_token>

#include "platform/UserInterface.h"

class QFileDialog;
class QMessageBox;
class QWidget;

namespace velra {

/// The boxes and dialogs of the program as real windows. Each one stands over the modal window that
/// is open, else over the main window.
class QtUserInterface : public UserInterface {
 public:
  /// The window that boxes stand over when no modal one is open; null before it exists.
  void setMainWindow(QWidget* window);

  void messageBox(const std::string& text, BoxKind kind) override;
  bool askOkCancel(const std::string& text) override;
  bool askYesNo(const std::string& text) override;
  Answer askYesNoCancel(const std::string& text) override;
  std::string inputBox(const std::string& prompt, const std::string& title,
                       const std::string& proposed) override;
  std::optional<std::string> openFileDialog(const std::string& title,
                                            const std::string& filter) override;
  std::optional<std::string> saveFileDialog(const std::string& title, const std::string& filter,
                                            const std::string& proposed) override;
  std::optional<ChosenFile> openTypedFile(const std::string& title,
                                          const std::string& filter) override;
  std::optional<ChosenFile> saveTypedFile(const std::string& title, const std::string& filter,
                                          const std::string& proposed) override;
  std::optional<std::string> folderDialog(const std::string& title,
                                          const std::string& proposed) override;
  void beep() override;
  std::unique_ptr<BusySign> showBusy() override;
  std::unique_ptr<ProgressSign> showProgress(const std::string& sentence) override;
  void workAside(const std::string& sentence, const std::function<void()>& work) override;
  bool workAtLength(const std::string& sentence, const LongWork& work) override;
  bool openMovie(const std::function<void(const std::stop_token&)>& work) override;

 private:
  QWidget* owner() const;
  /// Null: it cannot be cancelled, and nobody knows how much is done.
  void waitFor(const std::string& sentence, std::future<void> done, std::stop_source* stop,
               const std::atomic<double>* share = nullptr);
  std::optional<std::string> chosenFile(QFileDialog& dialog);
  std::optional<ChosenFile> typedFile(QFileDialog& dialog);

  QPointer<QWidget> mainWindow_;
  QString folder_;  // of the file chosen last in this run
};

}  // namespace velra
