// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra {

class ApplicationModule;
class MainTrees;

/// How the open document is left: the question, and what goes with it.
class DocumentClosing {
 public:
  DocumentClosing(ApplicationModule& app, MainTrees& trees) : app_(app), trees_(trees) {}

  /// Closes the open document, which must be there, after asking whether to save what has changed.
  /// False when the person wants to keep it open.
  bool CloseDocument(bool bNoPrompt);

  /// The document goes without a question, and with it the pictures that no saved object points at.
  void releaseDocument();

 private:
  bool saveQuestionAnswered();

  ApplicationModule& app_;
  MainTrees& trees_;
};

}  // namespace velra
