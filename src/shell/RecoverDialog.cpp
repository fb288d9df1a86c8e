// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/RecoverDialog.h"

#include <algorithm>
#include <utility>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "platform/UserInterface.h"
#include "platform/files/Files.h"
#include "rescue/InterruptedSave.h"
#include "rescue/KeptFiles.h"
#include "rescue/KeptWorkList.h"
#include "rescue/Recovery.h"
#include "rescue/RescueWriter.h"
#include "shell/DialogPresenter.h"
#include "shell/OpenedDocument.h"

namespace velra {

namespace {

constexpr std::size_t kMostLines = 20;  // that a box or a tool tip has room for

Message nameOf(Fate fate) {
  switch (fate) {
    case Fate::Left:
      return Message::EndLeft;
    case Fate::Error:
      return Message::EndError;
    case Fate::StillOpen:
      return Message::EndStillOpen;
    case Fate::Replaced:
      return Message::EndReplaced;
    default:
      return Message::EndCutOff;
  }
}

std::string joined(const std::vector<std::string>& texts, const std::string& between) {
  std::string all;
  for (const std::string& text : texts) {
    if (!text.empty()) all += (all.empty() ? "" : between) + text;
  }
  return all;
}

std::string inLines(std::vector<std::string> texts) {
  if (texts.size() > kMostLines) {
    texts.resize(kMostLines);
    texts.emplace_back("...");
  }
  return joined(texts, "\n");
}

}  // namespace

RecoverDialog::RecoverDialog(ApplicationModule& app, std::string openDocument)
    : app_(app), openDocument_(std::move(openDocument)) {}

std::string RecoverDialog::Show(DialogPresenter& presenter, FormOwner& owner) {
  recovered_.clear();
  if (fillRows()) presenter.showRecoverDialog(owner, *this);
  onUnload = nullptr;
  onRows = nullptr;
  return recovered_;
}

bool RecoverDialog::fillRows() {
  const auto busy = app_.ui.showBusy();
  const std::string failure = app_.rescue->run([this](RescueStore& store) {
    // What a save that was cut off had taken with it is no unsaved work.
    for (const KeptWork& work : interruptedSaves(store, "")) {
      finishInterruptedSaves(store, work.document);
    }
    works_ = restorableWork(store, openDocument_);
  });
  if (!failure.empty()) works_.clear();
  rows_.clear();
  for (const KeptWork& work : works_) rows_.push_back(rowOf(work));
  if (!failure.empty()) app_.ui.messageBox(failure, BoxKind::Exclamation);
  return failure.empty();
}

RecoverDialog::Row RecoverDialog::rowOf(const KeptWork& work) const {
  std::string folder;
  const std::string base = strSplitPath(work.document, folder);
  const Fate fate = fateOf(work);
  std::vector<std::string> first = work.titles;
  first.resize(std::min(first.size(), kMostLines));
  return {{base + " (" + folder + ")", strWhen(work.changed), std::to_string(work.titles.size()),
           joined(first, ", "), app_.LoadResString(nameOf(fate))},
          work.document + "\n" + inLines(work.titles),
          fate != Fate::Replaced,
          fate != Fate::StillOpen};
}

std::vector<KeptObject> RecoverDialog::objectsOf(const KeptWork& work) {
  std::vector<KeptObject> kept;
  const auto busy = app_.ui.showBusy();
  const std::string failure =
      app_.rescue->run([&](RescueStore& store) { kept = keptObjects(store, work); });
  if (!failure.empty()) app_.ui.messageBox(failure, BoxKind::Exclamation);
  return kept;
}

// What was made before is not written over, and no existing file is.
std::string RecoverDialog::askNewPath(const std::string& document) {
  std::string proposed = proposedRecoveryPath(document);
  while (true) {
    std::string path = app_.ui
                           .saveFileDialog(plainCaption(app_, Message::RecoverWork),
                                           "XML Files (*.xml)|*.xml", proposed)
                           .value_or("");
    if (path.empty()) return {};
    if (toLower(strExtension(path)) != "xml") path += ".xml";
    if (!fileStamp(path).exists) return strAbsolutePath(path);
    app_.ui.messageBox(app_.LoadResString(Message::NameTaken) + path, BoxKind::Exclamation);
    proposed = path;
  }
}

// A file that has changed since has two states, of which the new document can have one.
bool RecoverDialog::leaveOutAsWanted(std::vector<KeptObject>& kept) {
  const std::vector<std::string> changed = changedSince(kept);
  if (changed.empty()) return true;
  const Answer answer =
      app_.ui.askYesNoCancel(app_.LoadResString(Message::ChangedSince) + "\n" + inLines(changed) +
                             "\n\n" + app_.LoadResString(Message::AskKeptState));
  if (answer == Answer::No) {
    std::erase_if(kept, [&](const KeptObject& object) {
      return std::find(changed.begin(), changed.end(), object.path) != changed.end();
    });
  }
  return answer != Answer::Cancel;
}

void RecoverDialog::RecoverButton_Click(std::size_t row) {
  if (row >= rows_.size() || !rows_[row].canRecover) return;
  const KeptWork work = works_[row];
  const std::string path = askNewPath(work.document);
  if (path.empty()) return;
  std::vector<KeptObject> kept = objectsOf(work);
  if (kept.empty() || !leaveOutAsWanted(kept)) return;
  Recovered made;
  app_.ui.workAside(app_.LoadResString(Message::BringingBack),
                    [&] { made = recoverDocument(work.document, kept, path); });
  if (!made.failure.empty()) {
    app_.ui.messageBox(made.failure, BoxKind::Exclamation);
    return;
  }
  if (!made.notes.empty()) app_.ui.messageBox(inLines(made.notes), BoxKind::Exclamation);
  recovered_ = path;
  CloseButton_Click();
}

void RecoverDialog::SaveAsFilesButton_Click(std::size_t row) {
  if (row >= rows_.size()) return;
  const auto folder = app_.ui.folderDialog(app_.LoadResString(Message::FolderForFiles),
                                           folderOf(works_[row].document));
  if (!folder) return;
  const std::vector<KeptObject> kept = objectsOf(works_[row]);
  KeptFiles written;
  app_.ui.workAside(app_.LoadResString(Message::BringingBack),
                    [&] { written = writeKeptFiles(kept, *folder); });
  if (!written.failure.empty()) {
    app_.ui.messageBox(written.failure, BoxKind::Exclamation);
  } else {
    app_.ui.messageBox(app_.LoadResString(Message::FilesWritten) + std::to_string(written.files));
  }
}

void RecoverDialog::DropButton_Click(std::size_t row) {
  if (row >= rows_.size() || !rows_[row].canDrop) return;
  const KeptWork& work = works_[row];
  if (!app_.ui.askYesNo(app_.LoadResString(Message::AskDrop) + work.document + "?")) return;
  const std::string failure =
      app_.rescue->run([&](RescueStore& store) { dropKeptWork(store, work); });
  if (!failure.empty()) app_.ui.messageBox(failure, BoxKind::Exclamation);
  fillRows();
  if (onRows) onRows();
}

void RecoverDialog::CloseButton_Click() {
  if (onUnload) onUnload();
}

}  // namespace velra
