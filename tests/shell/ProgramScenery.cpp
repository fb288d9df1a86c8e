// SPDX-License-Identifier: GPL-3.0-or-later

// What scenes prepare before a person acts, and where they look afterwards.
#include <filesystem>

#include "base/Paths.h"
#include "base/Text.h"
#include "objects/Storage.h"
#include "schema/SEColl.h"
#include "shell/ProgramActor.h"
#include "store/IOManager.h"
#include "store/ObjectRegistry.h"

namespace velra::test {

namespace fs = std::filesystem;

void ProgramActor::learnToPrepare() {
  const TemporaryFolder& folder = program_.folder;
  verbs_["write"] = [&](const std::string& words) {
    const auto [file, text] = halves(words, " = ");
    folder.write(file, replaceAll(replaceAll(text, "\\n", "\n"), "\\r", "\r"));
  };
  verbs_["grow"] = [&](auto& file) { fs::resize_file(folder / file, 100'000); };
  verbs_["remove"] = [&](auto& file) { fs::remove(folder / file); };
  verbs_["folder"] = [&](auto& file) { fs::create_directory(folder / file); };
  verbs_["move"] = [&](const std::string& files) {
    const auto [from, to] = halves(files, " to ");
    fs::rename(folder / from, folder / to);
  };
  verbs_["copy"] = [&](const std::string& files) {
    const auto [from, to] = halves(files, " to ");
    fs::copy(folder / from, folder / to, fs::copy_options::recursive);
  };
  verbs_["setting"] = [&](const std::string& words) {
    const auto [name, value] = halves(words, "=");
    program_.settings.write(ApplicationModule::kMachineSection, name,
                            replaceAll(value, "~", folder.path()));
  };
  verbs_["store"] = [&](auto&) {
    rescue_ = std::make_unique<RescueWriter>(state_ / "rescue.sqlite");
    program_.app.rescue = rescue_.get();
  };
  verbs_["keep"] = [&](auto&) {
    while (program_.document()->keepUnsavedWork()) {
    }
  };
  verbs_["vocabulary"] = [&](auto&) { LoadThematicKeywords(program_.app); };
  verbs_["title"] = [&](const std::string& words) {
    const auto [name, title] = halves(words, " ");
    object(name)->setStrTitle(title);
  };
  verbs_["follow"] = [&](const std::string& names) {
    const auto [one, next] = halves(names, " ");
    expression(one)->setObjFollowedBy(expression(next));
  };
  verbs_["redraw"] = [&](auto& tree) {
    program_.mainForm.ResetTree(treeOf(tree), program_.version(1));
  };
  verbs_["duration"] = [&](const std::string& seconds) {
    program_.version(2)->setDDuration(std::stod(seconds));
  };
  verbs_["from-server"] = [&](auto&) { program_.document()->io()->setBFileSystem(false); };
}

void ProgramActor::learnToLook() {
  for (const std::string tree : {"left", "right"}) {
    verbs_[tree] = [this, tree](auto&) {
      for (const std::string& text : program_.texts(treeOf(tree))) say(text);
    };
  }
  verbs_["menus"] = [this](auto&) { showMenus(); };
  verbs_["status"] = [this](auto&) {  // without the time, which stands at the end
    say(halves(program_.mainForm.strStatusBarText(), " (20").first);
  };
  verbs_["busy"] = [this](auto&) { say(std::to_string(std::exchange(program_.ui.busySigns, 0))); };
  verbs_["files"] = [this](auto&) {  // that differ from the last time
    const Files before = std::exchange(files_, program_.folder.snapshot());
    for (const std::string& change : changedFiles(before, files_)) say(change);
  };
  verbs_["show"] = [this](auto& name) { showObject(*object(name)); };
  verbs_["document"] = [this](auto&) {
    if (!program_.document()) return say("none");
    showObject(*program_.document());
    say("objects: " + std::to_string(program_.document()->collObjects().Count()));
  };
  verbs_["holds"] = [this](const std::string& words) {
    const auto [file, text] = halves(words, " ");
    say(program_.folder.read(file).find(text) == std::string::npos ? "no" : "yes");
  };
  verbs_["watch"] = [this](auto&) { watch(); };
  verbs_["watched"] = [this](auto&) { showWatched(); };
}

void ProgramActor::showMenus() {
  program_.mainForm.mnuFile_Click();
  const MenuState& menus = program_.mainForm.menuState();
  std::string open = "language " + std::to_string(menus.language);
  if (menus.mnuAddChild) open += ", child";
  if (menus.mnuAddMainExpr) open += ", main";
  if (menus.mnuExportToDB) open += ", export";
  if (menus.mnuImportToFS) open += ", import";
  if (menus.mnuFileRecover) open += ", recover";
  if (menus.mnuFileIndependent) open += ", independent";
  say(open);
}

/// Its class, title and file; what else is worth to know of a Version or Storage.
void ProgramActor::showObject(const DescribedObject& object) {
  std::string text = object.className() + " '" + object.strTitle() + "' " + object.strGUID();
  if (object.bChanged()) text += ", changed";
  if (const auto* version = dynamic_cast<const Version*>(&object)) {
    text += ", " + numberText(version->dDuration()) + " s";
  }
  if (const auto* storage = dynamic_cast<const Storage*>(&object)) {
    if (storage->bIsSelected()) text += ", selected";
  }
  say(text);
}

void ProgramActor::watch() {
  watched_.clear();
  for (const RegisteredRef& each : program_.document()->collObjects().all()) {
    watched_.emplace_back(each->strGUID(), each);
  }
}

/// How many objects live, and whose key frames have an icon.
void ProgramActor::showWatched() {
  program_.app.lateRelease.await();
  int living = 0;
  std::string icons;
  for (const auto& [key, object] : watched_) {
    if (!object.expired()) ++living;
    if (program_.mainForm.imlTreeIcons().holds(key)) icons += " " + strFileName(key);
  }
  say(std::to_string(living) + " of " + std::to_string(watched_.size()) + " live; icons:" + icons);
}

}  // namespace velra::test
