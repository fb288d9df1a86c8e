// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "app/ApplicationModule.h"
#include "forms/AVDocSchemaDialog.h"
#include "forms/FormPresenter.h"
#include "objects/AVDocument.h"
#include "platform/settings/MachineSettings.h"
#include "platform/settings/UserSettings.h"
#include "shell/Factory.h"
#include "shell/frmMain.h"
#include "support/ScriptedUserInterface.h"

namespace velra::bench {

/// The program without windows, over the schema of the generated documents.
class BenchSession {
 public:
  BenchSession(const std::string& folder, const std::string& schema) : settings(folder + "/m.ini") {
    settings.write(ApplicationModule::kMachineSection, "XSDPath", schema);
  }
  ~BenchSession() { close(); }

  void open(const std::string& path) { mainForm.OpenFile(path); }
  void close() {
    mainForm.tvwMainTree.clear();
    mainForm.tvwExpression.clear();
    app.gAVDoc.reset();
    app.lateRelease.await();
  }
  std::shared_ptr<AVDocument> document() const {
    return std::dynamic_pointer_cast<AVDocument>(app.gAVDoc);
  }

 private:
  class NoPresenter : public FormPresenter {
    void showForm(FormOwner&, LoadedForm&) override {}
    void showSchemaDialog(FormOwner&, AVDocSchemaDialog&) override {}
  };

 public:
  test::ScriptedUserInterface ui;
  MachineSettings settings;
  UserSettings userSettings{"/nonexistent/velra.ini"};
  ApplicationModule app{ui, MessageCatalogue(InterfaceLanguage::Default), settings, userSettings};
  NoPresenter presenter;
  Factory factory{app, presenter, [] { return nullptr; }};
  frmMain mainForm{app};
};

}  // namespace velra::bench
