// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>

namespace velra {

/// The kinds of a message box with one button.
enum class BoxKind { Plain, Exclamation, Critical };

enum class Answer { Yes, No, Cancel };

/// What is said of a movie when the person did not wait for it.
inline constexpr char kOpeningCancelled[] = "The opening of the movie was cancelled.";

/// While an object of this kind lives, the window shows that work is going on and takes no
/// commands.
class BusySign {
 public:
  virtual ~BusySign() = default;
};

/// While an object of this kind lives, a bar shows how far long work in this thread has come, and
/// the window takes no commands.
class ProgressSign {
 public:
  virtual ~ProgressSign() = default;
  /// The share of the work that is done, from 0 to 1. Windows may paint themselves meanwhile.
  virtual void show(double /*share*/) {}
};

/// A file that a person has chosen, and the place, from 0, of the filter that stood then.
struct ChosenFile {
  std::string path;
  std::size_t filter = 0;
};

/// Boxes, dialogs and the beep: the one door through which the rules speak to the person. The
/// windows stand behind it, or a script in tests. All calls wait for the answer.
class UserInterface {
 public:
  virtual ~UserInterface() = default;

  /// A box with the program's title and an OK button.
  virtual void messageBox(const std::string& text, BoxKind kind = BoxKind::Plain) = 0;

  /// A box with OK and Cancel; callers of today look at neither.
  virtual bool askOkCancel(const std::string& text) = 0;

  /// A box with Yes and No; closing it counts as No.
  virtual bool askYesNo(const std::string& text) = 0;

  /// A box with Yes, No and Cancel; closing it counts as Cancel.
  virtual Answer askYesNoCancel(const std::string& text) = 0;

  /// The text that the person typed; "" for Cancel.
  virtual std::string inputBox(const std::string& prompt, const std::string& title,
                               const std::string& proposed = {}) = 0;

  /// The path of a file to open, as bytes; nothing for Cancel. `filter` holds pairs of a
  /// description and a pattern list, all separated by "|", as the catalogue of commands has them.
  virtual std::optional<std::string> openFileDialog(const std::string& title,
                                                    const std::string& filter) = 0;

  /// The path of a file to write; nothing for Cancel. Asks before an existing file is chosen.
  virtual std::optional<std::string> saveFileDialog(const std::string& title,
                                                    const std::string& filter,
                                                    const std::string& proposed) = 0;

  /// The same two where the filters are formats, of which the person chooses one.
  virtual std::optional<ChosenFile> openTypedFile(const std::string& title,
                                                  const std::string& filter) = 0;
  virtual std::optional<ChosenFile> saveTypedFile(const std::string& title,
                                                  const std::string& filter,
                                                  const std::string& proposed) = 0;

  /// The path of a folder to put files into; nothing for Cancel.
  virtual std::optional<std::string> folderDialog(const std::string& title,
                                                  const std::string& proposed) = 0;

  virtual void beep() = 0;

  /// Shows the busy cursor until the sign is released.
  [[nodiscard]] virtual std::unique_ptr<BusySign> showBusy() = 0;

  /// Shows a bar until the sign is released; `sentence` tells what is waited for.
  [[nodiscard]] virtual std::unique_ptr<ProgressSign> showProgress(const std::string& sentence) = 0;

  /// Does work that may take seconds on another thread, and returns when it is done. Windows paint
  /// themselves meanwhile and take no commands; when it lasts, `sentence` tells what is waited for.
  /// What the work raises is raised here.
  virtual void workAside(const std::string& sentence, const std::function<void()>& work) = 0;

  /// Does work that may take minutes on another thread, and returns when it is done. The work tells
  /// what share of it is done, from 0 to 1. Windows paint themselves meanwhile and take no
  /// commands, but the person can cancel: the work is then asked to stop, and the answer is false.
  /// What the work raises is raised here.
  using LongWork = std::function<void(const std::stop_token&, const std::function<void(double)>&)>;
  virtual bool workAtLength(const std::string& sentence, const LongWork& work) = 0;

  /// Does work that opens a movie, which may take a minute, on another thread, and returns when it
  /// is done. Windows paint themselves meanwhile and take no commands, but the person can cancel:
  /// the work is then asked to stop, and the answer is false. What the work raises is raised here.
  virtual bool openMovie(const std::function<void(const std::stop_token&)>& work) = 0;
};

}  // namespace velra
