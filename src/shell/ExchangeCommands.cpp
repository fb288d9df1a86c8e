// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ExchangeCommands.h"

#include <algorithm>
#include <functional>

#include "app/ApplicationModule.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "exchange/ContentWalk.h"
#include "exchange/ExchangeFailure.h"
#include "exchange/Export.h"
#include "exchange/imports/Import.h"
#include "exchange/imports/ImportFormats.h"
#include "exchange/imports/ImportTarget.h"
#include "objects/AVDocument.h"
#include "platform/UserInterface.h"
#include "platform/files/Files.h"
#include "protocol/MainWindow.h"
#include "shell/ExchangeFilters.h"
#include "shell/MainTrees.h"
#include "shell/OpenedDocument.h"
#include "shell/ShotsDialog.h"
#include "store/ObjectRegistry.h"

namespace velra {

namespace {

constexpr std::size_t kMostRows = 20;  // that a box has room for

// Where a command cannot be done, the person is told why.
void orTell(const ApplicationModule& app, const std::function<void()>& command) {
  std::string reason;
  try {
    return command();
  } catch (const ExchangeFailure& failure) {
    reason = failure.what();
  } catch (const RunTimeError& error) {
    reason = error.description();
  }
  app.ui.messageBox(app.messages.inLanguage(reason), BoxKind::Exclamation);
}

std::string inOneLine(const std::vector<std::string>& notes) {
  std::string line;
  for (const std::string& note : notes) line += ' ' + note;
  return line;
}

}  // namespace

// Two formats may have one ending, so that the filter counts; a name without the ending gets it.
std::string ExchangeCommands::askExportPath(std::size_t& format) {
  const std::string document = app_.gAVDoc->strGUID();
  std::string folder;
  const std::string base = strSplitPath(strAbsolutePath(document), folder);
  const auto chosen =
      app_.ui.saveTypedFile(plainCaption(app_, Message::ExportAs), exportFilters(), folder + base);
  changeCurrentFolder(folderOf(document));
  if (!chosen) return {};
  format = std::min(chosen->filter, exportFormats().size() - 1);
  const ExportFormat& wanted = *exportFormats()[format];
  const std::string suffix = '.' + std::string(wanted.extension);
  const bool ends = asciiLower(strExtension(chosen->path)) == strExtension(suffix);
  if (wanted.makesFolder || ends) return strAbsolutePath(chosen->path);
  const std::string path = strAbsolutePath(chosen->path) + suffix;
  const bool free =
      !bFileExists(path) || app_.ui.askYesNo(path + app_.LoadResString(Message::AskReplace));
  return free ? path : std::string();
}

// Read by the thread of the windows, whose objects they are.
Content ExchangeCommands::contentToExport() const {
  const auto sign = app_.ui.showProgress(app_.LoadResString(Message::Exporting));
  const double all = static_cast<double>(app_.gAVDoc->collObjects().Count());
  return contentOf(app_, *openedDocument(app_), [&](std::size_t read) {
    sign->show(std::min(static_cast<double>(read) / all, 1.0));
  });
}

void ExchangeCommands::mnuFileExportAs() {
  if (!needsDocument(app_)) return;
  std::size_t format = 0;
  ExportOptions options;
  options.output = askExportPath(format);
  if (options.output.empty()) return;
  const bool unsaved = !app_.gAVDoc->collObjects().changedObjects().empty();
  if (exportFormats()[format]->makesFolder && unsaved) {
    return app_.ui.messageBox(app_.LoadResString(Message::SaveFirst), BoxKind::Exclamation);
  }
  orTell(app_, [&] {
    Content content = contentToExport();
    Exported exported;
    app_.ui.workAside(app_.LoadResString(Message::Exporting), [&] {
      // What was read of a large document is given back there as well.
      const Content read = std::move(content);
      exported = exportContent(*exportFormats()[format], read, options);
    });
    tellDone(app_, window_, Message::ExportAs, options.output + "." + inOneLine(exported.notes));
  });
}

ObjectRef ExchangeCommands::shownVersion() const {
  const TreeNode* root = trees_.tree(TreeId::tvwExpression).root();
  if (root) return root->Tag;
  const ObjectList& versions = app_.gAVDoc->colChilds();
  return versions.empty() ? nullptr : versions.front();
}

ImportOptions ExchangeCommands::whereTo(const ImportFormat& format) const {
  ImportOptions options;
  const TreeNode* selected = trees_.tree(TreeId::tvwExpression).selected();
  const bool fits = selected && isExpression(selected->Tag->kind()) &&
                    (!format.words || selected->Tag->kind() == ObjectKind::Transcript);
  if (fits) options.into = strAbsolutePath(selected->Tag->strGUID());
  const ObjectList& versions = app_.gAVDoc->colChilds();
  const auto shown = std::find(versions.begin(), versions.end(), shownVersion());
  if (shown != versions.end()) options.version = static_cast<int>(shown - versions.begin()) + 1;
  return options;
}

void ExchangeCommands::mnuFileImport() {
  if (!needsDocument(app_)) return;
  const auto chosen = app_.ui.openTypedFile(plainCaption(app_, Message::ImportFile),
                                            importFilters(app_.LoadResString(Message::AllFormats)));
  // File dialogs may leave another folder as the current one.
  changeCurrentFolder(folderOf(app_.gAVDoc->strGUID()));
  if (!chosen) return;
  const auto& formats = importFormats();
  const bool named = chosen->filter > 0 && chosen->filter <= formats.size();
  const ImportFormat* format = named ? formats[chosen->filter - 1] : importFormatOf(chosen->path);
  if (!format || !format->read) {
    app_.ui.messageBox(app_.LoadResString(Message::FileNotValid) + ": " + chosen->path,
                       BoxKind::Exclamation);
    return;
  }
  import(*format, chosen->path, whereTo(*format));
}

void ExchangeCommands::import(const ImportFormat& format, const std::string& path,
                              ImportOptions options) {
  orTell(app_, [&] {
    try {
      const auto sign = app_.ui.showProgress(app_.LoadResString(Message::Importing));
      show(Message::ImportFile, importInto(app_, *openedDocument(app_), format, path, options,
                                           [&](double share) { sign->show(share); }));
    } catch (const WordsInTheWay&) {
      if (!app_.ui.askYesNo(app_.LoadResString(Message::AskReplaceWords))) return;
      options.replace = true;
      import(format, path, options);
    }
  });
}

void ExchangeCommands::mnuFileFindShots() {
  if (!presenter_ || !needsDocument(app_)) return;
  orTell(app_, [this] { takeShots(whereTo(kShotsImport)); });
}

void ExchangeCommands::takeShots(const ImportOptions& options) {
  AVDocument& document = *openedDocument(app_);
  const double rate = ImportTarget(document, kShotsImport, options).rate();
  const std::vector<FoundShot> shots =
      ShotsDialog(app_, shotTask(document, options), rate).Show(*presenter_, window_);
  if (shots.empty()) return;
  const auto sign = app_.ui.showProgress(app_.LoadResString(Message::Importing));
  show(Message::FindShots, takeProposal(app_, document, kShotsImport, proposalOf(shots), options,
                                        [&](double share) { sign->show(share); }));
}

// Icons come before the nodes that refer to them.
void ExchangeCommands::show(Message command, const ImportReport& report) {
  Tree& tree = trees_.tree(TreeId::tvwExpression);
  const ObjectRef selected = tree.selected() ? tree.selected()->Tag : nullptr;
  window_.UpdateSmallKeyFrames();
  window_.ResetTree(TreeId::tvwExpression, shownVersion());
  if (selected) {
    tree.ExpandToObject(*selected);
    tree.makeCurrent(*selected);
  }
  tellDone(app_, window_, command, report.closing);
  if (report.lines.empty()) return;
  std::string text = report.closing + "\n";
  for (std::size_t i = 0; i < std::min(report.lines.size(), kMostRows); ++i) {
    text += "\n" + report.lines[i];
  }
  if (report.lines.size() > kMostRows) text += "\n...";
  app_.ui.messageBox(text, BoxKind::Exclamation);
}

}  // namespace velra
