// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>

#include "platform/UserInterface.h"

namespace velra {

/// Boxes as lines on standard error, and the cautious answer to every question: nobody sits there.
class ConsoleInterface : public UserInterface {
 public:
  /// True when anything was told.
  bool hasTold() const { return told_; }

  void messageBox(const std::string& text, BoxKind) override {
    told_ = true;
    std::fprintf(stderr, "%s\n", text.c_str());
  }
  bool askOkCancel(const std::string& text) override { return told(text); }
  bool askYesNo(const std::string& text) override { return told(text); }
  Answer askYesNoCancel(const std::string& text) override {
    told(text);
    return Answer::Cancel;
  }
  std::string inputBox(const std::string&, const std::string&, const std::string&) override {
    return {};
  }
  std::optional<std::string> openFileDialog(const std::string&, const std::string&) override {
    return std::nullopt;
  }
  std::optional<std::string> saveFileDialog(const std::string&, const std::string&,
                                            const std::string&) override {
    return std::nullopt;
  }
  std::optional<ChosenFile> openTypedFile(const std::string&, const std::string&) override {
    return std::nullopt;
  }
  std::optional<ChosenFile> saveTypedFile(const std::string&, const std::string&,
                                          const std::string&) override {
    return std::nullopt;
  }
  std::optional<std::string> folderDialog(const std::string&, const std::string&) override {
    return std::nullopt;
  }
  void beep() override {}
  std::unique_ptr<BusySign> showBusy() override { return std::make_unique<BusySign>(); }
  std::unique_ptr<ProgressSign> showProgress(const std::string&) override {
    return std::make_unique<ProgressSign>();
  }
  void workAside(const std::string&, const std::function<void()>& work) override { work(); }
  bool workAtLength(const std::string&, const LongWork& work) override {
    work({}, [](double) {});
    return true;
  }
  bool openMovie(const std::function<void(const std::stop_token&)>& work) override {
    work({});
    return true;
  }

 private:
  bool told(const std::string& text) {
    messageBox(text, BoxKind::Plain);
    return false;
  }

  bool told_ = false;
};

}  // namespace velra
