// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/UserInterface.h"

namespace velra::test {

/// Records each box with its kind and text, and answers as it was told beforehand. An answer that
/// nobody foresaw is the cautious one: Cancel, No, "".
class ScriptedUserInterface : public UserInterface {
 public:
  /// What was shown, in order: "plain: text", "exclamation: text", "critical: text", "ok-cancel:
  /// text", "yes-no: text", "yes-no-cancel: text", "input: prompt | title", "open: title",
  /// "save: title | proposed", "folder: title | proposed", "beep".
  std::vector<std::string> shown;

  std::deque<bool> yesNo;
  std::deque<Answer> yesNoCancel;
  std::deque<std::string> inputs;
  std::deque<std::string> filesToOpen;  // "" is Cancel
  std::deque<std::string> filesToSave;
  bool waits = true;  // for a movie
  int busySigns = 0;  // how many were asked for

  void messageBox(const std::string& text, BoxKind kind) override {
    const char* names[] = {"plain: ", "exclamation: ", "critical: "};
    shown.push_back(names[static_cast<int>(kind)] + text);
  }
  bool askOkCancel(const std::string& text) override {
    shown.push_back("ok-cancel: " + text);
    return true;
  }
  bool askYesNo(const std::string& text) override {
    shown.push_back("yes-no: " + text);
    return next(yesNo, false);
  }
  Answer askYesNoCancel(const std::string& text) override {
    shown.push_back("yes-no-cancel: " + text);
    return next(yesNoCancel, Answer::Cancel);
  }
  std::string inputBox(const std::string& prompt, const std::string& title,
                       const std::string&) override {
    shown.push_back("input: " + prompt + " | " + title);
    return next(inputs, std::string());
  }
  std::optional<std::string> openFileDialog(const std::string& title, const std::string&) override {
    shown.push_back("open: " + title);
    return chosen(filesToOpen);
  }
  std::optional<std::string> saveFileDialog(const std::string& title, const std::string&,
                                            const std::string& proposed) override {
    shown.push_back("save: " + title + " | " + proposed);
    return chosen(filesToSave);
  }
  std::optional<std::string> folderDialog(const std::string& title,
                                          const std::string& proposed) override {
    shown.push_back("folder: " + title + " | " + proposed);
    return chosen(filesToSave);
  }
  // The filter stands behind the path, as in "film.csv as 2".
  std::optional<ChosenFile> openTypedFile(const std::string& title,
                                          const std::string& filter) override {
    return typed(openFileDialog(title, filter));
  }
  std::optional<ChosenFile> saveTypedFile(const std::string& title, const std::string& filter,
                                          const std::string& proposed) override {
    return typed(saveFileDialog(title, filter, proposed));
  }
  void beep() override { shown.emplace_back("beep"); }
  std::unique_ptr<BusySign> showBusy() override {
    ++busySigns;
    return std::make_unique<BusySign>();
  }

  std::unique_ptr<ProgressSign> showProgress(const std::string&) override {
    return std::make_unique<ProgressSign>();
  }

  void workAside(const std::string&, const std::function<void()>& work) override { work(); }
  bool workAtLength(const std::string&, const LongWork& work) override {
    work({}, [](double) {});
    return waits;
  }
  bool openMovie(const std::function<void(const std::stop_token&)>& work) override {
    work({});
    return waits;
  }

  void forgetAnswers() {
    yesNo.clear();
    yesNoCancel.clear();
    for (std::deque<std::string>* texts : {&inputs, &filesToOpen, &filesToSave}) texts->clear();
  }
  /// What was shown since the last call.
  std::vector<std::string> takeShown() { return std::exchange(shown, {}); }

 private:
  template <class T>
  static T next(std::deque<T>& answers, T otherwise) {
    if (answers.empty()) return otherwise;
    T answer = answers.front();
    answers.pop_front();
    return answer;
  }
  static std::optional<std::string> chosen(std::deque<std::string>& files) {
    std::string file = next(files, std::string());
    return file.empty() ? std::nullopt : std::optional(file);
  }
  static std::optional<ChosenFile> typed(const std::optional<std::string>& file) {
    if (!file) return std::nullopt;
    const std::size_t mark = file->find(" as ");
    const bool marked = mark != std::string::npos;
    return ChosenFile{file->substr(0, mark), marked ? std::stoul(file->substr(mark + 4)) : 0};
  }
};

}  // namespace velra::test
