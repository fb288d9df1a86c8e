// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "app/ApplicationModule.h"
#include "platform/movie/MediaGraph.h"
#include "platform/movie/MovieLibrary.h"
#include "platform/settings/MachineSettings.h"
#include "platform/settings/UserSettings.h"
#include "rescue/RescueWriter.h"
#include "shell/Factory.h"
#include "shell/Start.h"
#include "shell/VideoForm.h"
#include "shell/frmMain.h"
#include "widgets/QtUserInterface.h"
#include "widgets/forms/QtFormPresenter.h"
#include "widgets/main/MainFormWindow.h"
#include "widgets/tool/QtVideoForms.h"

namespace velra::bench {

/// The program with its real windows and its store, over the schema of the generated documents.
class DayProgram {
 public:
  DayProgram(const std::string& folder, const std::string& schema)
      : settings_(folder + "/m.ini"),
        userSettings_(folder + "/user.ini"),
        rescue_(folder + "/state/rescue.sqlite"),
        app{ui_, MessageCatalogue(InterfaceLanguage::Default), settings_, userSettings_} {
    settings_.write(ApplicationModule::kMachineSection, "XSDPath", schema);
    settings_.write(ApplicationModule::kMachineSection, "ThematicKeywordsPath",
                    VELRA_SOURCE_DIR "/data/ThematicKeywords.xml");
    app.rescue = &rescue_;
    ui_.setMainWindow(&window);
    presenter_.setMainWindow(&window);
    rules.setDialogPresenter(&presenter_);
  }
  ~DayProgram() { rules.releaseDocument(); }
  DayProgram(const DayProgram&) = delete;
  DayProgram& operator=(const DayProgram&) = delete;

  void start() {
    Main(app, rules, "", {[this] { window.show(); }, [] {}});
    loadMoviesAhead();  // as the program does when its window stands
  }

 private:
  QtUserInterface ui_;
  MachineSettings settings_;
  UserSettings userSettings_;
  RescueWriter rescue_;

 public:
  ApplicationModule app;

 private:
  QtFormPresenter presenter_{app};
  QtVideoForms videoForms_{app, [this](FormOwner& owner) { return presenter_.windowOf(owner); }};
  VideoFormServices forExpressions_{app, makeMediaGraph, videoForms_};
  Factory factory_{app, presenter_,
                   [this] { return std::make_shared<VideoForm>(forExpressions_); }};

 public:
  frmMain rules{app};
  MainFormWindow window{app, rules};
};

}  // namespace velra::bench
